#include "palette/palette_file.h"

#include <gtest/gtest.h>

#include "support/format_model.h"

namespace mill {
namespace {

using model::Bytes;

const std::string kHead("head \0 of any bytes \xFF...", 24);

TEST(PaletteFile, TakesWhatIsThere) {
  struct Case {
    const char* name;
    std::size_t size;
    std::size_t entries;
    std::string_view text;
  };
  const Case cases[] = {
      {"whole", 1048, 256, ""},
      {"bytes behind the end", 1100, 256, ""},
      {"last entry cut", 1047, 255, "The palette file is incomplete."},
      {"one entry", 28, 1, "The palette file is incomplete."},
      {"head only", 24, 0, "The palette file is incomplete."},
  };
  const model::Colours colours = model::someColours(5);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Bytes file = model::paletteFile(kHead, colours);
    file.resize(c.size, 0xEE);
    std::string head = "old";
    ColourTable table;
    table.fill({9, 9, 9, 9});
    EXPECT_EQ(message(readPalette(file, head, table)), c.text);
    EXPECT_EQ(head, kHead);
    for (std::size_t i = 0; i < table.size(); ++i) {
      const auto [red, green, blue, extra] = i < c.entries ? colours[i] : model::Colour{0, 0, 0, 0};
      ASSERT_EQ(table[i], (ColourEntry{red, green, blue, extra})) << i;
    }
  }
}

TEST(PaletteFile, WithoutAWholeHeadChangesNothing) {
  for (const std::size_t size : {0, 23}) {
    std::string head = "old";
    ColourTable table;
    table.fill({9, 9, 9, 9});
    const ColourTable before = table;
    EXPECT_EQ(readPalette(Bytes(size), head, table), Fault::PaletteIncomplete);
    EXPECT_EQ(head, "old");
    EXPECT_EQ(table, before);
  }
}

TEST(PaletteFile, IsWrittenBehindAHeadOfAnyLength) {
  for (const std::string& head : {kHead, std::string(), std::string("short")}) {
    const Bytes file = model::paletteFile(kHead, model::someColours(5));
    std::string unused;
    ColourTable table;
    ASSERT_EQ(readPalette(file, unused, table), Fault::None);
    EXPECT_EQ(paletteBytes(head, table), model::paletteFile(head, model::someColours(5)));
  }
}

}  // namespace
}  // namespace mill
