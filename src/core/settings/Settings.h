#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <memory>
#include <optional>

class QSettings;

// Source names (as import mappings compare them) to names on our lists.
struct ImportChoices
{
    QMap<QString, QString> categories;
    QMap<QString, QString> payways;
};

// Typed access to the per-user settings (organisation and application
// "Penwick"). Each accessor reads or writes one key of SettingsKeys.
class Settings
{
public:
    Settings();
    ~Settings();

    // Writes what was set to disk now, rather than some time later.
    // Writes to disk, the file readable and writable by the user alone: it
    // holds the password's hash.
    void sync();

    // 0 until the first start has set things up.
    int version() const;
    void setVersion(int version);

    // The data folder the user chose; empty when none was stored.
    QString dataPath() const;
    void setDataPath(const QString &path);

    // Months that close on a chosen day instead of the calendar's last day.
    bool changeMonthLastDate() const;
    void setChangeMonthLastDate(bool on);
    // The closing day as stored, in or out of 1 to 31; 0 when none is.
    int monthLastDate() const;
    bool hasMonthLastDate() const;
    void setMonthLastDate(int day);

    // The one-way hash of the password that locks the account book; empty
    // when there is none.
    QString passwordHash() const;
    void setPasswordHash(const QString &hash);

    // The windows that may open at start, in the order of their keys.
    enum class StartWindow { Input, List, Graph, Balance };
    // Whether the window opens at start; by default only the input window.
    bool openWindow(StartWindow window) const;
    void setOpenWindow(StartWindow window, bool open);

    // Which button Return presses in the input window: 0 or 1 its OK button,
    // 2 its input button, anything larger none.
    int returnInputDefault() const;
    void setReturnInputDefault(int which);

    // The input window's memory of booked descriptions, as stored.
    QVariantList recentDescriptions() const;
    void setRecentDescriptions(const QVariantList &records);
    QVariantList commonDescriptions() const;
    void setCommonDescriptions(const QVariantList &records);
    QVariantMap commonDescriptionsDB() const;
    void setCommonDescriptionsDB(const QVariantMap &records);

    // The state (0 off, 1 on) of each item of the list window's column menu,
    // in item order; empty when none was saved.
    QList<int> columnMenuStates() const;
    void setColumnMenuStates(const QList<int> &states);

    // A layout a widget saves under its own name (a window's frame, a table's
    // columns), opaque to everyone else; empty when none was saved.
    QByteArray savedLayout(const QString &name) const;
    void setSavedLayout(const QString &name, const QByteArray &layout);

    // A split view's three keys under its name; nullopt when absent.
    std::optional<bool> splitViewIsVertical(QStringView name) const;
    std::optional<QString> splitViewVerticalPosition(QStringView name) const;
    std::optional<QString> splitViewHorizontalPosition(QStringView name) const;
    void setSplitViewIsVertical(QStringView name, bool vertical);
    void setSplitViewVerticalPosition(QStringView name, const QString &layout);
    void setSplitViewHorizontalPosition(QStringView name, const QString &layout);
    // The chart the graph window opens with: 1 pie, 2 bars, 3 lines; any
    // other value (0 when none was stored) stands for the pie.
    int chartSelection() const;
    void setChartSelection(int chart);
    // How many months the bar chart shows; 0 when none was stored.
    int barChartNumberOfChart() const;
    void setBarChartNumberOfChart(int count);
    // Whether the line chart draws the budgets; not unless asked for.
    bool lineChartShowsBudgets() const;
    void setLineChartShowsBudgets(bool shown);

    // How the windows look: as the desktop has them, or in the program's own
    // light or dark colours. Stored, and named on the command line, as
    // "system", "light" or "dark"; anything else stands for the system's.
    enum class Appearance { System, Light, Dark };
    Appearance appearance() const;
    void setAppearance(Appearance appearance);
    static std::optional<Appearance> appearanceFromName(QStringView name);
    static QString appearanceName(Appearance appearance);

    // How the columns of a CSV file with this header line were read last
    // time; empty when never.
    QVariantMap csvImportMapping(const QStringList &header) const;
    void setCsvImportMapping(const QStringList &header, const QVariantMap &mapping);
    // Where imported categories and payment modes that match none of ours
    // by name went last time: their names, as compared, to ours.
    ImportChoices importChoices() const;
    void setImportChoices(const ImportChoices &choices);

private:
    std::unique_ptr<QSettings> m_settings;
};
