#include "platform/property.h"

#include <gtest/gtest.h>

TEST(Property, ItsWatcherHearsOfRealChangesOnly) {
  Property<int> number = 1;
  int heard = 0;
  number.Watch([&](int value) { heard = 10 * heard + value; });
  for (const int value : {1, 2, 2, 3}) number = value;
  number = Property<int>(4);
  EXPECT_EQ(234, heard);
}
