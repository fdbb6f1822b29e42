#include "rules/ParamRowTable.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using test::errorNumberOf;

TEST(ParamRowTable, HasEntriesUpToItsUpperBound) {
  ParamRowTable table;
  table.resize(3);
  EXPECT_EQ(table.upperBound(), 3);
  for (int row = 0; row <= 3; ++row) EXPECT_EQ(errorNumberOf([&] { table.row(row).Unit = "ml"; }), 0) << row;
}

TEST(ParamRowTable, RowsBeyondItsBoundsFail) {
  ParamRowTable table;
  EXPECT_EQ(errorNumberOf([&] { table.row(1); }), 9);
  table.resize(3);
  for (const int row : {-1, 4, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(errorNumberOf([&] { table.row(row); }), 9) << row;
    EXPECT_EQ(errorNumberOf([&] { std::as_const(table).row(row); }), 9) << row;
  }
}

TEST(ParamRowTable, ResizingMakesAllEntriesNew) {
  ParamRowTable table;
  table.resize(2);
  table.row(1).Value = 5.0;
  table.row(2).Unit = "ml";
  table.resize(2);
  EXPECT_TRUE(holdsNothing(table.row(1).Value));
  EXPECT_EQ(table.row(2).Unit, "");
  table.resize(1);
  EXPECT_EQ(errorNumberOf([&] { table.row(2); }), 9);
}

TEST(ParamRowTable, GrowingKeepsWhatIsThere) {
  ParamRowTable table;
  table.resize(1);
  table.row(1).Unit = "ml";
  table.grow(2);
  EXPECT_EQ(table.upperBound(), 3);
  EXPECT_EQ(table.row(1).Unit, "ml");
  EXPECT_EQ(table.row(3).Unit, "");
  table.grow(0);
  EXPECT_EQ(table.upperBound(), 3);
}

TEST(ParamRowTable, ANewEntryIsEmptyWithTheFactor1) {
  ParamRowTable table;
  table.resize(1);
  const ParamRowInfo& info = table.row(1);
  for (const Variant* value : {&info.Lower, &info.Upper, &info.Value, &info.Step, &info.Default}) {
    EXPECT_TRUE(holdsNothing(*value));
  }
  EXPECT_EQ(info.Factor, 1);
  EXPECT_EQ(info.IsNumeric, 0);
  EXPECT_EQ(info.ExtraValues + info.Description + info.Items + info.Unit, "");
}

}  // namespace
}  // namespace mavCycEd
