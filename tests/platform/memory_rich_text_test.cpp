#include "platform/memory_rich_text.h"

#include "tests/platform/rich_text_contract.h"

INSTANTIATE_TEST_SUITE_P(Memory, RichTextContract,
                         testing::Values(RichTextBody{
                             "memory", [] { return std::make_unique<MemoryRichText>(); }}));
