#include "cli/Cli.h"
#include "platform/Console.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    kestrel::keepOutputBytes();
    QCoreApplication app(argc, argv);
    std::vector<std::string> args(argv + 1, argv + argc);
    return kestrel::runCli(args);
}
