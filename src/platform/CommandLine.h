#pragma once
#include <string>
#include <utility>
#include <vector>

namespace kestrel {

// An option of a program's command line: its names ("port", or "h" and "help") and whether
// the next argument is its value.
struct CommandLineOption {
    std::vector<std::string> names;
    bool takesValue = false;
};

// A command line as the programs read it: options and operands in any order, every option
// written out ("--port NAME"; a one-letter name with one dash, "-h"), the value of an
// option the next argument whatever it looks like. Reading stops at the first fault.
struct CommandLine {
    // The options before the first fault, in the order given: the name as written and the
    // value ("" for an option without one).
    std::vector<std::pair<std::string, std::string>> options;
    std::vector<std::string> operands;
    // The first fault: "unknown option X", "X needs a value"; empty when there is none.
    std::string error;
};

// Reads `args` (without the program's name) with QCommandLineParser. What it would read
// otherwise than the programs always have ("--" ending the options, "--name=value",
// one-dash words) is an unknown option here; so is every operand when `operands` is false.
CommandLine readCommandLine(const std::vector<std::string>& args, const std::vector<CommandLineOption>& known,
                            bool operands = true);

} // namespace kestrel
