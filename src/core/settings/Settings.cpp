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

namespace {
QLatin1StringView startWindowKey(Settings::StartWindow window)
{
    switch (window) {
    case Settings::StartWindow::Input:
        return SettingsKeys::OpenInputWindow;
    case Settings::StartWindow::List:
        return SettingsKeys::OpenListWindow;
    case Settings::StartWindow::Graph:
        return SettingsKeys::OpenGraphWindow;
    case Settings::StartWindow::Balance:
        break;
    }
    return SettingsKeys::OpenBalanceWindow;
}
} // namespace

bool Settings::openWindow(StartWindow window) const
{
    return m_settings->value(startWindowKey(window), window == StartWindow::Input).toBool();
}

void Settings::setOpenWindow(StartWindow window, bool open)
{
    // Stored as the number of a check box's state, as the key always was.
    m_settings->setValue(startWindowKey(window), int(open));
}

int Settings::returnInputDefault() const
{
    return m_settings->value(SettingsKeys::ReturnInputDefault, 0).toInt();
}

void Settings::setReturnInputDefault(int which)
{
    m_settings->setValue(SettingsKeys::ReturnInputDefault, which);
}

QByteArray Settings::windowGeometry(QAnyStringView name) const
{
    return m_settings->value(name).toByteArray();
}

void Settings::setWindowGeometry(QAnyStringView name, const QByteArray &geometry)
{
    m_settings->setValue(name, geometry);
}
