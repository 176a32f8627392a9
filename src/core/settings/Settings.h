#pragma once

#include <QAnyStringView>
#include <QByteArray>
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

    // The windows that may open at start, in the order of their keys.
    enum class StartWindow { Input, List, Graph, Balance };
    // Whether the window opens at start; by default only the input window.
    bool openWindow(StartWindow window) const;
    void setOpenWindow(StartWindow window, bool open);

    // Which button Return presses in the input window: 0 or 1 its OK button,
    // 2 its input button, anything larger none.
    int returnInputDefault() const;
    void setReturnInputDefault(int which);

    // A window's saved frame, under the window's own name.
    QByteArray windowGeometry(QAnyStringView name) const;
    void setWindowGeometry(QAnyStringView name, const QByteArray &geometry);

private:
    std::unique_ptr<QSettings> m_settings;
};
