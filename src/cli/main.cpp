#include "AppCommands.h"
#include "CommandLine.h"
#include "DumpCommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// A command reads the arguments that follow its name itself.
using Command = AppCommands::Command;

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

QString descriptionOf(const QList<Command> &commands)
{
    QString text = tr("Looks into and works with Penwick account books.") + u"\n\n"_s
                   + tr("Commands:") + u'\n';
    qsizetype width = 0;
    for (const Command &command : commands)
        width = std::max(width, command.name.size());
    // The summaries in one column, two spaces clear of the longest name.
    for (const Command &command : commands)
        text += u"  %1  %2\n"_s.arg(command.name.leftJustified(width), command.summary);
    return text + u'\n' + tr("Run '%1 COMMAND --help' for the usage of a command.")
                              .arg(QCoreApplication::applicationName());
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"penwickctl"_s);

    const QList<Command> commands = AppCommands::commands()
        + QList<Command>{{DumpCommand::name(), DumpCommand::summary(), &DumpCommand::run}};

    QCommandLineParser parser;
    parser.setApplicationDescription(descriptionOf(commands));
    // Everything from the command's name on belongs to the command.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addPositionalArgument(u"COMMAND"_s, tr("The command to run."),
                                 u"COMMAND [ARGUMENTS...]"_s);
    if (const auto status = CommandLine::parse(parser, {}, QCoreApplication::arguments().mid(1)))
        return *status;

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return CommandLine::usageError({}, tr("no command given"));
    const auto command = std::find_if(commands.cbegin(), commands.cend(), [&](const Command &c) {
        return c.name == words.constFirst();
    });
    if (command == commands.cend())
        return CommandLine::usageError({}, tr("unknown command '%1'").arg(words.constFirst()));
    return command->run(words.mid(1));
}
