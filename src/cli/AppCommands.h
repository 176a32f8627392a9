#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// The commands of penwickctl that talk to the running program over the
// session bus: read the lists, open windows, book, list, search and sort
// entries. Each answers its exit status; failures are one line on stderr.
class AppCommands
{
    Q_DECLARE_TR_FUNCTIONS(AppCommands)

public:
    struct Command
    {
        QString name;
        QString summary;
        int (*run)(const QStringList &arguments);
    };
    static QList<Command> commands();

    // "200605" as year and month; nothing for text that names no month.
    struct Month
    {
        int year;
        int month;
    };
    static std::optional<Month> parseMonth(const QString &text);
    // A category or payway given by its name (exact, else the one that
    // matches without regard to case) or by its index; nothing when it
    // names none of `names`.
    static std::optional<int> indexOf(const QString &nameOrIndex, const QStringList &names);

private:
    static int categories(const QStringList &arguments);
    static int payways(const QStringList &arguments);
    static int show(const QStringList &arguments);
    static int book(const QStringList &arguments);
    static int list(const QStringList &arguments);
    static int search(const QStringList &arguments);
    static int sort(const QStringList &arguments);
    static int exportCsv(const QStringList &arguments);
    static int importFile(const QStringList &arguments);
    static int budget(const QStringList &arguments);
    static int schedules(const QStringList &arguments);
};
