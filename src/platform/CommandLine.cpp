#include "platform/CommandLine.h"

#include <QCommandLineParser>
#include <QStringList>
#include <map>

namespace kestrel {

namespace {

QString qt(const std::string& text) { return QString::fromLocal8Bit(text.data(), qsizetype(text.size())); }

// The known option an argument names as written, or null.
const CommandLineOption* optionWritten(const std::string& arg, const std::vector<CommandLineOption>& known)
{
    for (const CommandLineOption& option : known)
        for (const std::string& name : option.names)
            if (arg == (name.size() == 1 ? "-" : "--") + name)
                return &option;
    return nullptr;
}

} // namespace

CommandLine readCommandLine(const std::vector<std::string>& args, const std::vector<CommandLineOption>& known,
                            bool operands)
{
    CommandLine line;
    // Where the arguments up to the first fault end, and which of them are options and operands.
    std::vector<std::size_t> optionAt;
    std::vector<std::size_t> operandAt;
    std::size_t end = 0;
    for (; end < args.size(); ++end) {
        const std::string& arg = args[end];
        const CommandLineOption* option = optionWritten(arg, known);
        const bool looksLikeOption = arg.size() > 1 && arg[0] == '-';
        if (!option && (looksLikeOption || !operands)) {
            line.error = "unknown option " + arg;
            break;
        }
        if (!option) {
            operandAt.push_back(end);
            continue;
        }
        if (option->takesValue && end + 1 >= args.size()) {
            line.error = arg + " needs a value";
            break;
        }
        optionAt.push_back(end);
        if (option->takesValue)
            ++end;
    }

    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const CommandLineOption& option : known) {
        QStringList names;
        for (const std::string& name : option.names)
            names << qt(name);
        parser.addOption(QCommandLineOption(names, QString(), option.takesValue ? "value" : QString()));
    }
    QStringList given{"program"};
    for (std::size_t i = 0; i < end; ++i)
        given << qt(args[i]);
    // The walk and the parser agree on every argument; the texts are taken as given, byte
    // for byte (a QString would replace what is not text in the system's encoding).
    if (!parser.parse(given) || parser.positionalArguments().size() != qsizetype(operandAt.size())) {
        line.error = parser.errorText().toStdString();
        return line;
    }
    std::map<const CommandLineOption*, qsizetype> seen;
    for (std::size_t i : optionAt) {
        const CommandLineOption* option = optionWritten(args[i], known);
        const QStringList values = parser.values(qt(option->names.front()));
        if (option->takesValue && seen[option]++ >= values.size()) {
            line.error = args[i] + " needs a value";
            return line;
        }
        line.options.emplace_back(args[i], option->takesValue ? args[i + 1] : std::string());
    }
    for (std::size_t i : operandAt)
        line.operands.push_back(args[i]);
    return line;
}

} // namespace kestrel
