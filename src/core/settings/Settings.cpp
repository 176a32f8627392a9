#include "settings/Settings.h"

#include "settings/SettingsKeys.h"

#include <QSettings>

Settings::Settings()
    : m_settings(std::make_unique<QSettings>(QStringLiteral("Penwick"), QStringLiteral("Penwick")))
{
}

Settings::~Settings() = default;

void Settings::sync()
{
    m_settings->sync();
}

int Settings::version() const
{
    return m_settings->value(SettingsKeys::Version, 0).toInt();
}

void Settings::setVersion(int version)
{
    m_settings->setValue(SettingsKeys::Version, version);
}

QString Settings::dataPath() const
{
    return m_settings->value(SettingsKeys::DataPath).toString();
}

void Settings::setDataPath(const QString &path)
{
    m_settings->setValue(SettingsKeys::DataPath, path);
}

bool Settings::changeMonthLastDate() const
{
    return m_settings->value(SettingsKeys::ChangeMonthLastDate, false).toBool();
}

void Settings::setChangeMonthLastDate(bool on)
{
    m_settings->setValue(SettingsKeys::ChangeMonthLastDate, on);
}

int Settings::monthLastDate() const
{
    return m_settings->value(SettingsKeys::MonthLastDate, 0).toInt();
}

void Settings::setMonthLastDate(int day)
{
    m_settings->setValue(SettingsKeys::MonthLastDate, day);
}

QString Settings::passwordHash() const
{
    return m_settings->value(SettingsKeys::PasswordHash).toString();
}

void Settings::setPasswordHash(const QString &hash)
{
    m_settings->setValue(SettingsKeys::PasswordHash, hash);
}

int Settings::chartSelection() const
{
    return m_settings->value(SettingsKeys::ChartSelection, 0).toInt();
}

void Settings::setChartSelection(int chart)
{
    m_settings->setValue(SettingsKeys::ChartSelection, chart);
}

int Settings::barChartNumberOfChart() const
{
    return m_settings->value(SettingsKeys::BarChartNumberOfChart, 0).toInt();
}

void Settings::setBarChartNumberOfChart(int count)
{
    m_settings->setValue(SettingsKeys::BarChartNumberOfChart, count);
}

QByteArray Settings::windowGeometry(QLatin1StringView name) const
{
    return m_settings->value(name).toByteArray();
}

void Settings::setWindowGeometry(QLatin1StringView name, const QByteArray &geometry)
{
    m_settings->setValue(name, geometry);
}
