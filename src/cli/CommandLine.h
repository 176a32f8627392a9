#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

// What every command of penwickctl shares: its exit statuses, the parsing of
// its arguments and the way it writes.
namespace CommandLine {

enum ExitStatus : int {
    Success = 0,
    Failure = 1,     // the input could not be read or the request failed
    UsageError = 2,  // the command line itself is wrong
};

// Adds -h/--help to the parser and parses `arguments`, those that follow the
// command's name (all of them for penwickctl itself, with an empty
// `command`). Answers the exit status when the run ends here, after the help
// or a usage error was printed; nothing when the command goes on.
std::optional<int> parse(QCommandLineParser &parser, const QString &command,
                         const QStringList &arguments);

// Prints the message and where to find the usage; answers UsageError.
int usageError(const QString &command, const QString &message);

// "penwickctl: message" as one line on stderr.
void printError(const QString &message);
void printOut(const QByteArray &text);

// The text with backslashes, newlines, carriage returns and tabs written as
// \\ \n \r \t, so that it stays within one line or one field of a line.
QString escaped(const QString &text);

} // namespace CommandLine
