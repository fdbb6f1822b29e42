#include <cstdint>
#include <new>
#include <stdexcept>

#include "com/Barrier.h"
#include "com/BasicStrings.h"
#include "com/Lifetime.h"
#include "com/Pointers.h"

#include <gtest/gtest.h>

namespace mavCycEd::com {
namespace {

TEST(BarrierTest, MakesACodeOfEveryException) {
  EXPECT_EQ(barrier([] {}), S_OK);
  EXPECT_EQ(barrier([] { return S_FALSE; }), S_FALSE);
  EXPECT_EQ(barrier([] { throw Failure(DISP_E_BADINDEX); }), DISP_E_BADINDEX);
  EXPECT_EQ(barrier([] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
  EXPECT_EQ(barrier([] { throw std::runtime_error("anything"); }), E_UNEXPECTED);
  EXPECT_EQ(barrier([] { throw 5; }), E_UNEXPECTED);
}

/// A page of memory with some protection, and one behind it that is none.
class Page {
 public:
  explicit Page(DWORD protection) : memory_(VirtualAlloc(nullptr, 2 * size, MEM_RESERVE, PAGE_NOACCESS)) {
    VirtualAlloc(memory_, size, MEM_COMMIT, protection);
  }
  ~Page() { VirtualFree(memory_, 0, MEM_RELEASE); }
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  char* begin() const { return static_cast<char*>(memory_); }
  static constexpr std::size_t size = 4096;

 private:
  void* memory_;
};

HRESULT readable(const void* memory, std::size_t bytes) {
  return barrier([&] { requireReadable(memory, bytes); });
}
HRESULT writable(const void* memory, std::size_t bytes) {
  return barrier([&] { requireWritable(memory, bytes); });
}

TEST(PointersTest, OnlyMemoryThatIsThereIsUsed) {
  const Page page(PAGE_READWRITE);
  EXPECT_EQ(writable(page.begin(), Page::size), S_OK);
  EXPECT_EQ(writable(page.begin() + 1, Page::size), E_POINTER) << "it ends behind the page";
  EXPECT_EQ(writable(nullptr, 1), E_POINTER);
  EXPECT_EQ(readable(page.begin() + Page::size, 1), E_POINTER);
  EXPECT_EQ(readable(page.begin(), SIZE_MAX), E_POINTER) << "beyond all memory";
}

TEST(PointersTest, MemoryToReadIsNotWritten) {
  const Page page(PAGE_READONLY);
  EXPECT_EQ(readable(page.begin(), Page::size), S_OK);
  EXPECT_EQ(writable(page.begin(), 1), E_POINTER);
  const Page guarded(PAGE_READWRITE | PAGE_GUARD);
  EXPECT_EQ(readable(guarded.begin(), 1), E_POINTER);
  EXPECT_EQ(readable(guarded.begin(), 1), E_POINTER) << "asking does not take the guard away";
}

TEST(BasicStringsTest, GoThereAndBackWithEveryCharacter) {
  const std::string text("a\0\xC2\xB5\xF0\x9F\x90\x8D", 8);
  const BasicString basic(text);
  EXPECT_EQ(SysStringLen(basic.get()), 5U);
  EXPECT_EQ(toUtf8(basic.get()), text);
  EXPECT_EQ(toUtf8(nullptr), "");
}

TEST(BasicStringsTest, WhatIsNoTextIsRefused) {
  const Page page(PAGE_READWRITE);
  EXPECT_EQ(barrier([&] { toUtf8(reinterpret_cast<BSTR>(page.begin() + Page::size)); }), E_POINTER)
      << "it begins behind the page";
  // A size that leads beyond the page.
  auto* const size = reinterpret_cast<std::uint32_t*>(page.begin());
  *size = 100000;
  EXPECT_EQ(barrier([&] { toUtf8(reinterpret_cast<BSTR>(size + 1)); }), E_POINTER);
}

/// An object that counts.
class Counted : public IUnknown {
 public:
  STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  ULONG references = 1;
};

void pump() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
}

TEST(LifetimeTest, StaysUntilTheMessagesAtHandAreDealtWith) {
  Counted whole;
  Lifetime lifetime(whole);
  lifetime.stayUntilIdle();
  EXPECT_EQ(whole.references, 2U);
  pump();
  EXPECT_EQ(whole.references, 1U);
}

TEST(LifetimeTest, InACallOfTheHostsThatCallIsEnough) {
  Counted whole;
  Lifetime lifetime(whole);
  {
    const Lifetime::Stay stay(lifetime);
    lifetime.stayUntilIdle();
    EXPECT_EQ(whole.references, 2U);
  }
  EXPECT_EQ(whole.references, 1U);
}

TEST(LifetimeTest, WhatIsModalKeepsItWhateverMessagesCome) {
  Counted whole;
  Lifetime lifetime(whole);
  {
    const Lifetime::StayWhileModal modal(lifetime);
    lifetime.stayUntilIdle();
    pump();
    EXPECT_EQ(whole.references, 2U);
  }
  EXPECT_EQ(whole.references, 2U) << "who opened it is not through";
  pump();
  EXPECT_EQ(whole.references, 1U);
}

}  // namespace
}  // namespace mavCycEd::com
