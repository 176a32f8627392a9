#pragma once

#include <QString>
#include <QTemporaryDir>

// A private home for one test program: HOME points into a temporary folder,
// settings go to the test location and start empty, and the data folder is
// a fresh folder the settings name. Construct it before anything reads a
// standard path.
class TestDataFolder
{
public:
    TestDataFolder();
    ~TestDataFolder();

    QString home() const { return m_home.path(); }
    // Points the settings at a new, empty data folder and answers its path.
    QString freshDataFolder();
    QString filePath(const QString &name) const;
    QString dataFolder() const { return m_dataFolder; }

private:
    QTemporaryDir m_home;
    QString m_dataFolder;
    int m_count = 0;
};
