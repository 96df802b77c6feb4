#include "platform/Console.h"
#include "shell/Cli.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    kestrel::keepOutputBytes();
    QCoreApplication app(argc, argv);
    std::vector<std::string> args(argv + 1, argv + argc);
    return kestrel::runCli(args);
}
