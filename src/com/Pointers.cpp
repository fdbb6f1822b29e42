#include "com/Pointers.h"

#include <cstdint>

#include "com/Barrier.h"

namespace mavCycEd::com {
namespace {

constexpr DWORD writablePages = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr DWORD readablePages = writablePages | PAGE_READONLY | PAGE_EXECUTE_READ;

void require(const void* memory, std::size_t size, DWORD pages) {
  auto at = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t end = at + size;
  if (memory == nullptr || end < at) throw Failure(E_POINTER);
  while (at < end) {
    MEMORY_BASIC_INFORMATION region{};
    if (VirtualQuery(reinterpret_cast<const void*>(at), &region, sizeof region) == 0 || region.State != MEM_COMMIT ||
        (region.Protect & pages) == 0 || (region.Protect & PAGE_GUARD) != 0) {
      throw Failure(E_POINTER);
    }
    at = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
  }
}

}  // namespace

void requireReadable(const void* memory, std::size_t size) { require(memory, size, readablePages); }
void requireWritable(const void* memory, std::size_t size) { require(memory, size, writablePages); }

}  // namespace mavCycEd::com
