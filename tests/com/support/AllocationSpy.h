// Counts the memory of the system's task allocator, in which texts and arrays of the automation library stand, and runs
// out of it on demand.
#pragma once

namespace orx::com::test {

/// What the calling thread allocates while one lives. Blocks from before do not count.
class AllocationSpy {
 public:
  AllocationSpy();
  ~AllocationSpy();
  AllocationSpy(const AllocationSpy&) = delete;
  AllocationSpy& operator=(const AllocationSpy&) = delete;

  /// All allocations so far, failed ones included.
  long Allocations() const;
  /// The blocks that have not been freed.
  long InUse() const;
  /// Lets so many allocations succeed and the next one fail.
  void FailAfter(long allocations);
};

}  // namespace orx::com::test
