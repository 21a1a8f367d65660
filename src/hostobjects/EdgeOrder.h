// The order in which the edges of an extent are written.
#pragma once

namespace orx {

/// Runs the writes of two opposite edges, left and right or bottom and top, so that a host's extent is in order after
/// each step: the edge in front goes first. `isForward` is true when the lower edge moves to a greater value.
template <class WriteLower, class WriteUpper>
void WriteInOrder(bool isForward, WriteLower&& writeLower, WriteUpper&& writeUpper) {
  if (isForward) writeUpper();
  writeLower();
  if (!isForward) writeUpper();
}

}  // namespace orx
