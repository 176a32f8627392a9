#include "TestDataFolder.h"

#include "settings/Settings.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

TestDataFolder::TestDataFolder()
{
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", QDir(m_home.path()).filePath(QStringLiteral(".config")).toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QSettings(QStringLiteral("Penwick"), QStringLiteral("Penwick")).clear();
}

TestDataFolder::~TestDataFolder()
{
    QSettings(QStringLiteral("Penwick"), QStringLiteral("Penwick")).clear();
}

QString TestDataFolder::freshDataFolder()
{
    m_dataFolder = QDir(m_home.path()).filePath(QStringLiteral("data-%1").arg(++m_count));
    QDir().mkpath(m_dataFolder);
    Settings().setDataPath(m_dataFolder);
    return m_dataFolder;
}

QString TestDataFolder::filePath(const QString &name) const
{
    return QDir(m_dataFolder).filePath(name);
}
