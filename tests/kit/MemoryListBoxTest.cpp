#include "ListBoxContract.h"
#include "memory/MemoryListBox.h"

namespace mavCycEd::test {
namespace {

class MemoryEdition {
 public:
  memory::MemoryItemListBox& items() { return items_; }
  memory::MemoryLineListBox& lines() { return lines_; }

 private:
  memory::MemoryItemListBox items_{nullptr};
  memory::MemoryLineListBox lines_{nullptr};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, ListBoxContract, MemoryEdition);

}  // namespace
}  // namespace mavCycEd::test
