#include "settings/Settings.h"

#include "settings/SettingsKeys.h"

#include <QSettings>

Settings::Settings()
    : m_settings(std::make_unique<QSettings>(QStringLiteral("Penwick"), QStringLiteral("Penwick")))
{
}

Settings::~Settings() = default;

QString Settings::dataPath() const
{
    return m_settings->value(SettingsKeys::DataPath).toString();
}

void Settings::setDataPath(const QString &path)
{
    m_settings->setValue(SettingsKeys::DataPath, path);
}
