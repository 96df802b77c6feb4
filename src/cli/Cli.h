#pragma once
#include <string>
#include <vector>

namespace kestrel {

// The batch tool. Exit status: 0 success, 1 the module operation failed, 2 a usage
// error or a port that cannot be opened.
int runCli(const std::vector<std::string>& args);

} // namespace kestrel
