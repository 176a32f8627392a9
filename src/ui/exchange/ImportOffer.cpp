#include "exchange/ImportOffer.h"

#include "exchange/ImportDialog.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace {
// The one local file a drag carries, if that is what it carries.
QString droppedFile(const QMimeData *mime)
{
    const QList<QUrl> urls = mime ? mime->urls() : QList<QUrl>();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}
} // namespace

ImportOffer::ImportOffer(KController *ledger, QAction *importAction, QObject *parent)
    : QObject(parent)
    , m_ledger(ledger)
    , m_action(importAction)
{
    connect(m_action, &QAction::triggered, this, [this] { show({}, QApplication::activeWindow()); });
}

void ImportOffer::offerIn(QWidget *window, QMenuBar *bar)
{
    // After the first group of File (New), else leading it.
    QMenu *file = bar->actions().constFirst()->menu();
    const QList<QAction *> items = file->actions();
    const auto separator = std::find_if(items.cbegin(), items.cend(),
                                        [](const QAction *item) { return item->isSeparator(); });
    QAction *before = separator == items.cend() ? items.value(0) : items.value(separator - items.cbegin() + 1);
    file->insertAction(before, m_action);
    file->insertSeparator(before);
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool ImportOffer::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const QString path = droppedFile(drop->mimeData());
    if (path.isEmpty() || !m_action->isEnabled() || !QFileInfo(path).isFile())
        return false;
    drop->acceptProposedAction();
    if (type == QEvent::Drop)
        show(path, qobject_cast<QWidget *>(watched));
    return true;
}

void ImportOffer::show(const QString &path, QWidget *window)
{
    if (!m_action->isEnabled())
        return;
    if (path.isEmpty()) {
        auto *dialog = new QFileDialog(window, tr("Import"),
                                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                       tr("Statements and account books (*.csv *.txt *.qif *.ofx *.qfx *.xhb)")
                                           + QStringLiteral(";;") + tr("All files (*)"));
        dialog->setFileMode(QFileDialog::ExistingFile);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QFileDialog::fileSelected, this,
                [this, window](const QString &chosen) { show(chosen, window); });
        dialog->open();
        return;
    }
    auto *dialog = new ImportDialog(m_ledger, path, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
