#pragma once

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

    // The data folder the user chose; empty when none was stored.
    QString dataPath() const;
    void setDataPath(const QString &path);

private:
    std::unique_ptr<QSettings> m_settings;
};
