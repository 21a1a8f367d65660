// Looks over a form that is shown: is any text cut off, does anything stand outside of what it stands
// in, or upon its neighbour? Meant for every dialog, at every screen resolution.
#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"

namespace orx::test {

/// What is wrong, one line for each finding with the names of the controls; empty when all is well. Only what can be
/// seen is looked at, so open each tab in turn.
std::vector<std::string> LayoutProblems(const Form& form);

}  // namespace orx::test
