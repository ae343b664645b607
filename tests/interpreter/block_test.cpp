#include "tests/fakes/machine_test.h"

namespace {

class BlockTest : public MachineTest {};

TEST_F(BlockTest, FirstRowWithoutGWordMovesRapidly) {
  Play({"[BILLET X20 Z40", "X10 Z5"});
  EXPECT_EQ(41u, Graphics::StockProfile.size() / 10 + 1);
}

}  // namespace
