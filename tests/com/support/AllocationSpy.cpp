#include "tests/com/support/AllocationSpy.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include "com/Counted.h"

namespace orx::com::test {
namespace {

/// The system keeps it for as long as a block lives that was allocated under its eyes; it is never made twice.
class Spy final : public Counted<IMallocSpy> {
 public:
  SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T bytes) noexcept override {
    if (!IsWatched()) return bytes;
    return ++Allocations == Failing ? 0 : bytes;
  }
  void* STDMETHODCALLTYPE PostAlloc(void* block) noexcept override {
    if (IsWatched() && block) ++InUse;
    return block;
  }
  void* STDMETHODCALLTYPE PreFree(void* block, BOOL isSpied) noexcept override {
    if (IsWatched() && isSpied && block) --InUse;
    return block;
  }
  void STDMETHODCALLTYPE PostFree(BOOL) noexcept override {}
  SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T bytes, void** given, BOOL) noexcept override {
    *given = block;
    return bytes;
  }
  void* STDMETHODCALLTYPE PostRealloc(void* block, BOOL) noexcept override { return block; }
  void* STDMETHODCALLTYPE PreGetSize(void* block, BOOL) noexcept override { return block; }
  SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T bytes, BOOL) noexcept override { return bytes; }
  void* STDMETHODCALLTYPE PreDidAlloc(void* block, BOOL) noexcept override { return block; }
  int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int actual) noexcept override { return actual; }
  void STDMETHODCALLTYPE PreHeapMinimize() noexcept override {}
  void STDMETHODCALLTYPE PostHeapMinimize() noexcept override {}

  DWORD Thread = 0;
  long Allocations = 0;
  long InUse = 0;
  long Failing = 0;

 private:
  bool IsWatched() const { return Thread == GetCurrentThreadId(); }
};

/// The library keeps freed strings for later ones, which would hide both frees and failures.
void KeepNoStrings() {
  const auto found = GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache");
  ASSERT_TRUE(found);
  reinterpret_cast<void(WINAPI*)()>(reinterpret_cast<void (*)()>(found))();
}

Spy& TheSpy() {
  static Spy* const spy = [] {
    Spy* const made = MakeCounted<Spy>().Detach();
    KeepNoStrings();
    EXPECT_EQ(CoRegisterMallocSpy(made), S_OK);
    return made;
  }();
  return *spy;
}

}  // namespace

AllocationSpy::AllocationSpy() {
  Spy& spy = TheSpy();
  spy.Allocations = spy.InUse = spy.Failing = 0;
  spy.Thread = GetCurrentThreadId();
}

AllocationSpy::~AllocationSpy() {
  TheSpy().Thread = 0;
}

long AllocationSpy::Allocations() const {
  return TheSpy().Allocations;
}

long AllocationSpy::InUse() const {
  return TheSpy().InUse;
}

void AllocationSpy::FailAfter(long allocations) {
  TheSpy().Failing = TheSpy().Allocations + allocations + 1;
}

}  // namespace orx::com::test
