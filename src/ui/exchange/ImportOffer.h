#pragma once

#include <QObject>
#include <QString>

class KController;
class QAction;
class QMenuBar;
class QWidget;

// Where a person starts an import: File > Import… in the windows that take
// entries, or a file dropped on one of them. Either opens the import preview
// over that window, while the menu item is enabled.
class ImportOffer : public QObject
{
    Q_OBJECT

public:
    ImportOffer(KController *ledger, QAction *importAction, QObject *parent = nullptr);

    // Puts the menu item after the first group of the window's File menu and
    // takes files dropped on the window.
    void offerIn(QWidget *window, QMenuBar *bar);
    // The preview of importing the file, over the window; with no file, asks
    // for one first.
    void show(const QString &path, QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    KController *m_ledger;
    QAction *m_action;
};
