#pragma once

#include "ledger/ListConversion.h"
#include "settings/Settings.h"

#include <QDialog>
#include <QPersistentModelIndex>

#include <optional>

class KController;
class ListEditorModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTabWidget;
class QTableView;

// The preferences: the category list with its colours, the payway list, and
// the general settings (appearance, data folder, windows to open at start,
// the month's closing day, the Return key of the input window, the password).
//
// Nothing is stored until OK, which renumbers the stored entries where
// items were merged or moved, writes the lists and settings, and announces
// them; Cancel drops every edit. The data folder and the password are the
// exceptions: a new folder takes effect as soon as it is chosen, a password
// as soon as its own dialog is confirmed, and a new appearance shows at once
// (Cancel brings the old one back). The window never opens another
// window itself; it asks with signals.
class PrefWinController : public QDialog
{
    Q_OBJECT

public:
    explicit PrefWinController(KController *controller, QWidget *parent = nullptr);
    ~PrefWinController() override;

    // The very first start: the window greets the user, and closing it, in
    // any way, asks for the input window.
    void setFirstSetting(bool firstSetting);
    bool firstSetting() const { return m_firstSetting; }

    // OK; Cancel is QDialog's reject().
    void accept() override;

    // Makes path the data folder at once: every loaded month is saved first.
    // Choosing the folder in use changes nothing. False when the folder was
    // not changed.
    bool changeDataFolder(const QString &path);

signals:
    // The data folder is now path (the lock of the running instance goes
    // with it); emitted before anything in the new folder is read.
    void dataFolderChanged(const QString &path);
    // Closed in its first-setting state: the input window is to open.
    void showInputWindowRequested();

protected:
    void done(int result) override;

private:
    QWidget *createListTab(ListEditorModel *model, const QString &hint);
    QWidget *createGeneralTab();
    void readListFromDefault();
    void readSettings();
    bool convertAndWriteLists();
    void writeSettings();
    void addItem(ListEditorModel *model, QTableView *view);
    void deleteItem(ListEditorModel *model, QTableView *view);
    void chooseColor(int row);
    void selectFolder();
    void setPassword();
    void showPasswordState();
    void showDataFolder(const QString &path);
    void showProblem(const QString &text, const QString &details);
    void beep();

    KController *m_controller;
    bool m_firstSetting = false;

    QLabel *m_welcome;
    QTabWidget *m_tabs;
    ListEditorModel *m_categoryModel;
    ListEditorModel *m_paywayModel;
    // The lists as they were read into the editors; the list file must
    // still hold them when the edits are written.
    StoredLists m_listsShown;

    QLineEdit *m_dataPath;
    QCheckBox *m_openWindow[4];
    QCheckBox *m_setLastDate;
    QSpinBox *m_lastDate;
    QComboBox *m_returnInput;
    QComboBox *m_appearance;
    // The look in force before the user tried others here; none while the
    // user has not.
    std::optional<Settings::Appearance> m_appearanceBefore;
    QLabel *m_passwordState;
    // The name of an item just added, open for editing as offered.
    QPersistentModelIndex m_offeredName;
};
