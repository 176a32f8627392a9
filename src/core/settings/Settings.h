#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

#include <memory>

class QSettings;

// Typed access to the per-user settings (organisation and application
// "Penwick"). Each accessor reads or writes one key of SettingsKeys.
class Settings
{
public:
    Settings();
    ~Settings();

    // Writes what was set to disk now, rather than some time later.
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
    int monthLastDate() const;
    void setMonthLastDate(int day);

    // The one-way hash of the password that locks the account book; empty
    // when there is none.
    QString passwordHash() const;
    void setPasswordHash(const QString &hash);

    // The chart the graph window opens with: 1 pie, 2 bars, 3 lines; any
    // other value (0 when none was stored) stands for the pie.
    int chartSelection() const;
    void setChartSelection(int chart);
    // How many months the bar chart shows; 0 when none was stored.
    int barChartNumberOfChart() const;
    void setBarChartNumberOfChart(int count);

    // A window's saved frame (QWidget::saveGeometry) under its own name.
    QByteArray windowGeometry(QLatin1StringView name) const;
    void setWindowGeometry(QLatin1StringView name, const QByteArray &geometry);

private:
    std::unique_ptr<QSettings> m_settings;
};
