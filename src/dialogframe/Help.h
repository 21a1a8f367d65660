// The help of the library: its one file, and what every Help button does.
#pragma once

#include <cstdint>
#include <string>

namespace orx {

class Form;

namespace modMain {

/// The help file of the whole library, UTF-8; empty if there is none. There is one for all
/// threads of the process.
std::string HelpFile();
void HelpFile(const std::string& value);

/// Opens the Help Topics of `helpFile` at the help context number, on behalf of the form. Without a help file the user
/// is told so. Errors of the help engine are ignored.
void ShowHelpFinder(Form& form, const std::string& helpFile, std::int32_t helpContextId);

}  // namespace modMain
}  // namespace orx
