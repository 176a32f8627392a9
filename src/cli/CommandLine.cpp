#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace CommandLine {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

// The program as it was called, as the parser's usage line names it.
QString program()
{
    return QCoreApplication::arguments().value(0, QCoreApplication::applicationName());
}

} // namespace

std::optional<int> parse(QCommandLineParser &parser, const QString &command,
                         const QStringList &arguments)
{
    // Our own help option: the parser's also offers --help-all, which lists
    // Qt's options, none of which mean anything to a command.
    const QCommandLineOption helpOption({u"h"_s, u"help"_s}, tr("Show this help."));
    parser.addOption(helpOption);
    // The parser skips the first argument as the program's name.
    if (!parser.parse(QStringList{program()} + arguments))
        return usageError(command, parser.errorText());
    if (parser.isSet(helpOption)) {
        // The usage line names the program alone; the command follows it.
        QString help = parser.helpText();
        if (const qsizetype at = help.indexOf(program()); at >= 0 && !command.isEmpty())
            help.insert(at + program().size(), u' ' + command);
        printOut(help.toUtf8());
        return Success;
    }
    return std::nullopt;
}

int usageError(const QString &command, const QString &message)
{
    printError(command.isEmpty() ? message : command + u": "_s + message);
    const QString invocation = command.isEmpty()
        ? QCoreApplication::applicationName()
        : QCoreApplication::applicationName() + u' ' + command;
    write(stderr, tr("Run '%1 --help' for the usage.\n").arg(invocation).toUtf8());
    return UsageError;
}

void printError(const QString &message)
{
    const QString line = QCoreApplication::applicationName() + u": "_s + escaped(message) + u'\n';
    write(stderr, line.toUtf8());
}

void printOut(const QByteArray &text)
{
    write(stdout, text);
}

QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'\\': result += u"\\\\"_s; break;
        case u'\n': result += u"\\n"_s; break;
        case u'\r': result += u"\\r"_s; break;
        case u'\t': result += u"\\t"_s; break;
        default: result += c;
        }
    }
    return result;
}

} // namespace CommandLine
