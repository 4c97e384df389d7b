#include "palette/palette_list.h"

#include <limits>

#include "support/windows.h"

namespace mill {
namespace {

const std::vector<model::ListRecord> kRecords = {
    {model::someColours(1), 25}, {model::someColours(2), -1}, {model::someColours(3), 1 << 30}};

TEST(PaletteList, HoldsBothColourOrdersInOneRecord) {
  const model::Bytes file = model::paletteList(kRecords);
  std::vector<ListPalette> palettes(5);
  ASSERT_EQ(readPaletteList(3, model::reader(file, kListHeadSize, file.size()), palettes),
            Fault::None);
  ASSERT_EQ(palettes.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(palettes[i].Entries, test::tableOf(kRecords[i].colours)) << i;
    EXPECT_EQ(palettes[i].Index, kRecords[i].index) << i;
  }
  // A device that fails leaves them alone.
  EXPECT_EQ(readPaletteList(2, model::reader(file, kListHeadSize, 2000), palettes),
            Fault::NotAPaletteList);
  EXPECT_EQ(palettes.size(), 3u);
}

TEST(PaletteList, TheCountIsHeldAgainstTheSizeOfTheFile) {
  constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();
  const std::tuple<std::uint32_t, std::int64_t, bool> cases[] = {
      {0, kHuge, false},         {1, 1083, false},         {1, 1084, true},
      {2, 1084, false},          {32767, 33815595, false}, {32767, 33815596, true},
      {32767, kHuge, true},      {32768, kHuge, false},    {0x80000001, kHuge, false},
      {0xFFFFFFFF, kHuge, false}};
  for (const auto& [number, size, valid] : cases) {
    std::array<std::uint8_t, kListHeadSize> head;
    head.fill(0xEE);
    for (std::size_t i = 0; i < 4; ++i) head[4 + i] = static_cast<std::uint8_t>(number >> (8 * i));
    int count = -1;
    EXPECT_EQ(checkPaletteList(head, size, count), valid ? Fault::None : Fault::NotAPaletteList);
    EXPECT_EQ(count, valid ? static_cast<int>(number) : -1) << number << " in " << size;
  }
}

}  // namespace
}  // namespace mill
