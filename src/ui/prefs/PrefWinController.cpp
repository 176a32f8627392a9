#include "prefs/PrefWinController.h"

#include "ledger/KController.h"
#include "model/CategoryPalette.h"
#include "model/Notifications.h"
#include "password/SetPassPanelController.h"
#include "prefs/ListEditorModel.h"
#include "prefs/MergeItemDialog.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/Appearance.h"
#include "widgets/RgbaQColor.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// What Return presses in the input window, as the setting stores it.
enum ReturnInput { ReturnPressesOK = 0, ReturnPressesInput = 2, ReturnPressesNothing = 3 };

// The text every category list ends with: income, in the current language.
QString incomeName()
{
    return QCoreApplication::translate("Localizable", "Income");
}

int selectedRow(const QTableView *view)
{
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

} // namespace

PrefWinController::PrefWinController(KController *controller, QWidget *parent)
    : QDialog(parent)
    , m_controller(controller)
    , m_welcome(new QLabel(this))
    , m_tabs(new QTabWidget(this))
    , m_categoryModel(new ListEditorModel(ListEditorModel::Kind::Categories, this))
    , m_paywayModel(new ListEditorModel(ListEditorModel::Kind::Payways, this))
{
    setObjectName(QStringLiteral("PrefWindow"));
    setWindowTitle(tr("Preferences"));

    m_welcome->setObjectName(QStringLiteral("welcome"));
    m_welcome->setWordWrap(true);
    m_welcome->setText(tr("<b>Welcome to Penwick.</b> Look through the categories and payways "
                          "you will book entries under, and choose where your account book is "
                          "kept. You can change all of this later in the preferences."));
    m_welcome->hide();

    m_tabs->setObjectName(QStringLiteral("tableTab"));
    m_tabs->addTab(createListTab(m_categoryModel,
                                 tr("Drag a category to change the order. Income always comes "
                                    "last and is not edited here.")),
                   tr("&Categories"));
    QWidget *payways = createListTab(m_paywayModel, tr("Drag a payway to change the order."));
    payways->setObjectName(QStringLiteral("Payway"));
    m_tabs->addTab(payways, tr("&Payways"));
    m_tabs->addTab(createGeneralTab(), tr("&General"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &PrefWinController::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_welcome);
    layout->addWidget(m_tabs);
    layout->addWidget(buttons);

    readListFromDefault();
    readSettings();
    // The lists can change while the window is open (Undo in another
    // window): edits not begun follow them.
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this, [this] {
        if (!m_categoryModel->editor().isModified() && !m_paywayModel->editor().isModified())
            readListFromDefault();
    });
    resize(480, 460);
    restoreGeometry(Settings().savedLayout(SettingsKeys::PreferenceWindow));
}

PrefWinController::~PrefWinController() = default;

QWidget *PrefWinController::createListTab(ListEditorModel *model, const QString &hint)
{
    auto *tab = new QWidget(m_tabs);
    auto *table = new QTableView(tab);
    const bool categories = model == m_categoryModel;
    table->setObjectName(categories ? QStringLiteral("categoryTable")
                                    : QStringLiteral("paywayTable"));
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setDragDropMode(QAbstractItemView::InternalMove);
    table->setDragDropOverwriteMode(false);
    table->setDefaultDropAction(Qt::MoveAction);
    table->setDropIndicatorShown(true);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                           | QAbstractItemView::SelectedClicked);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(ListEditorModel::NameColumn,
                                                    QHeaderView::Stretch);
    // A refused name beeps, the item's own too, except the name a new item
    // was offered with: keeping that is no mistake.
    connect(model, &ListEditorModel::nameRefused, this,
            [this, model](int row, const QString &name) {
                if (model->index(row, ListEditorModel::NameColumn) != m_offeredName
                    || name != model->editor().name(row))
                    beep();
            });
    connect(table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this] { m_offeredName = QPersistentModelIndex(); });
    if (categories) {
        table->horizontalHeader()->setSectionResizeMode(ListEditorModel::ColorColumn,
                                                        QHeaderView::ResizeToContents);
        connect(table, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
            if (index.column() == ListEditorModel::ColorColumn)
                chooseColor(index.row());
        });
    }

    auto *add = new QPushButton(tr("&Add"), tab);
    auto *remove = new QPushButton(tr("&Delete…"), tab);
    add->setObjectName(QStringLiteral("addItem"));
    remove->setObjectName(QStringLiteral("deleteItems"));
    connect(add, &QPushButton::clicked, this, [this, model, table] { addItem(model, table); });
    connect(remove, &QPushButton::clicked, this,
            [this, model, table] { deleteItem(model, table); });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    QPushButton *color = nullptr;
    if (categories) {
        color = new QPushButton(tr("C&olour…"), tab);
        color->setObjectName(QStringLiteral("changeColor"));
        connect(color, &QPushButton::clicked, this,
                [this, table] { chooseColor(selectedRow(table)); });
        buttons->addWidget(color);
        auto *reset = new QPushButton(tr("&Reset Colours"), tab);
        reset->setObjectName(QStringLiteral("resetColors"));
        reset->setToolTip(tr("Give every category its colour from the palette again"));
        connect(reset, &QPushButton::clicked, this, [model] {
            for (int row = 0; row < model->rowCount(); ++row)
                model->setColor(row, toQColor(CategoryPalette::colorAt(row)));
        });
        buttons->addWidget(reset);
    }
    buttons->addStretch();

    // A list always keeps one item: there must be somewhere for entries to go.
    const auto updateButtons = [model, table, remove, color] {
        const bool selected = selectedRow(table) >= 0;
        remove->setEnabled(selected && model->rowCount() > 1);
        if (color)
            color->setEnabled(selected);
    };
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, tab, updateButtons);
    connect(model, &QAbstractItemModel::modelReset, tab, updateButtons);
    connect(model, &QAbstractItemModel::rowsInserted, tab, updateButtons);
    connect(model, &QAbstractItemModel::rowsRemoved, tab, updateButtons);
    updateButtons();

    auto *note = new QLabel(hint, tab);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);

    auto *layout = new QVBoxLayout(tab);
    layout->addWidget(table);
    layout->addLayout(buttons);
    layout->addWidget(note);
    return tab;
}

QWidget *PrefWinController::createGeneralTab()
{
    auto *tab = new QWidget(m_tabs);
    auto *form = new QFormLayout(tab);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);

    m_appearance = new QComboBox(tab);
    m_appearance->setObjectName(QStringLiteral("appearancePp"));
    m_appearance->addItem(tr("System"), int(Settings::Appearance::System));
    m_appearance->addItem(tr("Light"), int(Settings::Appearance::Light));
    m_appearance->addItem(tr("Dark"), int(Settings::Appearance::Dark));
    m_appearance->setToolTip(tr("System looks as the desktop has it; Light and Dark use "
                                "Penwick's own colours."));
    // Shown at once, so that the user sees what OK would keep.
    connect(m_appearance, &QComboBox::activated, this, [this] {
        if (!m_appearanceBefore)
            m_appearanceBefore = Appearance::current();
        Appearance::apply(Settings::Appearance(m_appearance->currentData().toInt()));
    });
    form->addRow(tr("&Appearance:"), m_appearance);

    m_dataPath = new QLineEdit(tab);
    m_dataPath->setObjectName(QStringLiteral("dataPathTF"));
    m_dataPath->setReadOnly(true);
    auto *choose = new QPushButton(tr("C&hoose…"), tab);
    choose->setObjectName(QStringLiteral("selectFolder"));
    connect(choose, &QPushButton::clicked, this, &PrefWinController::selectFolder);
    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(m_dataPath, 1);
    folderRow->addWidget(choose);
    form->addRow(tr("Data folder:"), folderRow);

    const QString windows[4] = {tr("&Input window"), tr("&List window"), tr("G&raph window"),
                                tr("&Balance window")};
    auto *windowColumn = new QVBoxLayout;
    for (int i = 0; i < 4; ++i) {
        m_openWindow[i] = new QCheckBox(windows[i], tab);
        m_openWindow[i]->setObjectName(QStringLiteral("openWindow%1").arg(i));
        windowColumn->addWidget(m_openWindow[i]);
    }
    form->addRow(tr("Open at start:"), windowColumn);

    m_setLastDate = new QCheckBox(tr("Close each &month on day"), tab);
    m_setLastDate->setObjectName(QStringLiteral("setLastDateCB"));
    m_lastDate = new QSpinBox(tab);
    m_lastDate->setObjectName(QStringLiteral("lastDateTF"));
    m_lastDate->setRange(1, 31);
    m_lastDate->setToolTip(tr("Entries after this day count towards the next month."));
    connect(m_setLastDate, &QCheckBox::toggled, m_lastDate, &QSpinBox::setEnabled);
    // Once the user picks a day, a stored one outside the range is gone.
    connect(m_lastDate, &QSpinBox::valueChanged, this, [this](int day) {
        if (day > 0)
            m_lastDate->setMinimum(1);
    });
    auto *closingRow = new QHBoxLayout;
    closingRow->addWidget(m_setLastDate);
    closingRow->addWidget(m_lastDate);
    closingRow->addStretch();
    form->addRow(tr("Closing day:"), closingRow);

    m_returnInput = new QComboBox(tab);
    m_returnInput->setObjectName(QStringLiteral("returnInputPp"));
    m_returnInput->addItem(tr("Presses OK"), int(ReturnPressesOK));
    m_returnInput->addItem(tr("Presses Input"), int(ReturnPressesInput));
    m_returnInput->addItem(tr("Does nothing"), int(ReturnPressesNothing));
    form->addRow(tr("Return &key in the input window:"), m_returnInput);

    auto *password = new QPushButton(tr("Change Pass&word…"), tab);
    password->setObjectName(QStringLiteral("setPassword"));
    connect(password, &QPushButton::clicked, this, &PrefWinController::setPassword);
    m_passwordState = new QLabel(tab);
    m_passwordState->setObjectName(QStringLiteral("passwordState"));
    auto *passwordRow = new QHBoxLayout;
    passwordRow->addWidget(password);
    passwordRow->addWidget(m_passwordState, 1);
    form->addRow(tr("Password:"), passwordRow);
    return tab;
}

void PrefWinController::setFirstSetting(bool firstSetting)
{
    m_firstSetting = firstSetting;
    m_welcome->setVisible(firstSetting);
}

void PrefWinController::readListFromDefault()
{
    showDataFolder(m_controller->dataFolderPath());
    // The income category, last, is not edited here: it is written back
    // under its name in the current language on OK.
    const StoredLists stored = m_controller->storedLists();
    m_listsShown = stored;
    QStringList categories = stored.categories;
    QList<RgbaColor> colors = stored.colors;
    QString income = incomeName();
    if (!categories.isEmpty())
        income = categories.takeLast();
    // A list file from elsewhere may lack colours; those categories get black
    // rather than no colour at all.
    colors.resize(categories.size(), RgbaColor());
    ListEditor categoryEditor(categories, colors);
    categoryEditor.setReservedNames({income, incomeName()});
    m_categoryModel->setEditor(categoryEditor);
    m_paywayModel->setEditor(ListEditor(stored.payways));
}

void PrefWinController::readSettings()
{
    const Settings settings;
    const Settings::StartWindow windows[4] = {Settings::StartWindow::Input,
                                              Settings::StartWindow::List,
                                              Settings::StartWindow::Graph,
                                              Settings::StartWindow::Balance};
    for (int i = 0; i < 4; ++i)
        m_openWindow[i]->setChecked(settings.openWindow(windows[i]));
    const int returnInput = settings.returnInputDefault();
    // 0 and 1 both mean the OK button.
    const int item = m_returnInput->findData(returnInput == 1 ? int(ReturnPressesOK) : returnInput);
    m_returnInput->setCurrentIndex(qMax(0, item));
    m_appearance->setCurrentIndex(qMax(0, m_appearance->findData(int(settings.appearance()))));
    m_setLastDate->setChecked(settings.changeMonthLastDate());
    // A stored day the box cannot offer (none, 0, or outside 1 to 31) shows
    // as it is, in place of 0 below the range, and stays stored as it is
    // until the user picks a day.
    const int day = settings.monthLastDate();
    const bool keepDay = !settings.hasMonthLastDate() || day < 1 || day > 31;
    m_lastDate->setMinimum(keepDay ? 0 : 1);
    m_lastDate->setSpecialValueText(!keepDay ? QString()
                                    : settings.hasMonthLastDate() ? QLocale().toString(day)
                                                                  : QStringLiteral("–"));
    m_lastDate->setValue(keepDay ? 0 : day);
    m_lastDate->setEnabled(m_setLastDate->isChecked());
    showPasswordState();
}

void PrefWinController::showPasswordState()
{
    m_passwordState->setText(PasswordLock::passwordFromDefault().isEmpty()
                                 ? tr("No password is asked for at start.")
                                 : tr("A password is asked for at start."));
}

void PrefWinController::showDataFolder(const QString &path)
{
    m_dataPath->setText(QDir::toNativeSeparators(path));
    m_dataPath->setToolTip(QDir::toNativeSeparators(path));
    m_dataPath->setCursorPosition(0);
}

void PrefWinController::beep()
{
    QApplication::beep();
}

void PrefWinController::addItem(ListEditorModel *model, QTableView *view)
{
    // A new category takes a palette colour no other one has yet.
    const int row =
        model->addItem(tr("Untitled"), toQColor(CategoryPalette::nextColor(model->editor().colors())));
    const QModelIndex name = model->index(row, ListEditorModel::NameColumn);
    view->setCurrentIndex(name);
    m_offeredName = name;
    view->edit(name);
}

void PrefWinController::deleteItem(ListEditorModel *model, QTableView *view)
{
    const int row = selectedRow(view);
    if (row < 0 || model->rowCount() < 2) {
        beep();
        return;
    }
    auto *dialog = new MergeItemDialog(model->editor().names(), row, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [model, view, dialog] {
        const int target = dialog->targetRow();
        if (model->mergeItem(dialog->row(), target))
            view->selectRow(target < dialog->row() ? target : target - 1);
    });
    dialog->open();
}

void PrefWinController::chooseColor(int row)
{
    if (row < 0 || row >= m_categoryModel->rowCount())
        return;
    auto *dialog = new QColorDialog(m_categoryModel->color(row), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Colour of “%1”").arg(m_categoryModel->editor().name(row)));
    connect(dialog, &QColorDialog::colorSelected, this,
            [this, row](const QColor &color) { m_categoryModel->setColor(row, color); });
    dialog->open();
}

void PrefWinController::selectFolder()
{
    auto *dialog =
        new QFileDialog(this, tr("Choose the Data Folder"), m_controller->dataFolderPath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setLabelText(QFileDialog::Accept, tr("Choose"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &path) { changeDataFolder(path); });
    dialog->open();
}

bool PrefWinController::changeDataFolder(const QString &path)
{
    const QString folder = QDir::cleanPath(path);
    if (folder.isEmpty() || folder == QDir::cleanPath(m_controller->dataFolderPath()))
        return false;
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isWritable()) {
        showProblem(tr("Penwick cannot keep its data in this folder."),
                    tr("The folder %1 cannot be written to. Choose a folder you may change.")
                        .arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    // Everything loaded goes to the old folder before the new one is used.
    if (!m_controller->releaseAllDataWithSave(true)) {
        showProblem(tr("The data folder was not changed."),
                    tr("Some months could not be saved in the current folder. They stay "
                       "loaded so that nothing is lost; free some disk space or check the "
                       "folder's permissions, then try again."));
        return false;
    }
    Settings settings;
    settings.setDataPath(folder);
    settings.sync();
    emit dataFolderChanged(folder);
    QString error;
    if (!m_controller->finishInterruptedConversion(&error))
        showProblem(tr("The new data folder needs attention."), error);
    if (!m_controller->replayChangeJournal(&error))
        showProblem(tr("The new data folder needs attention."), error);
    readListFromDefault();
    emit Notifications::instance()->listPreferenceHasUpDated();
    return true;
}

void PrefWinController::setPassword()
{
    // The panel stores the password itself: OK or Cancel here changes
    // nothing about it.
    auto *panel = new SetPassPanelController(this);
    connect(panel, &QDialog::accepted, this, &PrefWinController::showPasswordState);
    panel->open();
}

bool PrefWinController::convertAndWriteLists()
{
    // Edits made to lists that have changed since would renumber the
    // entries by positions that no longer hold.
    if (m_controller->storedLists() != m_listsShown) {
        readListFromDefault();
        showProblem(tr("The lists were not changed."),
                    tr("The categories or payways were changed elsewhere while this window "
                       "was open (by Undo or Redo). The window now shows them as they are; "
                       "make your changes again."));
        return false;
    }
    const ListEditor &categories = m_categoryModel->editor();
    const ListEditor &payways = m_paywayModel->editor();
    ListConversion conversion;
    conversion.categoryMap = categories.conversionMapWithIncomeLast();
    conversion.paywayMap = payways.conversionMap();
    conversion.setLists({categories.names() << incomeName(), categories.colors(), payways.names()},
                        m_controller->dataFolderPath());

    // Application-modal: no entry may be booked while the folder changes.
    QProgressDialog progress(tr("Renumbering the stored entries…"), QString(), 0, 0, this);
    progress.setWindowTitle(tr("Preferences"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(400);
    progress.setAutoClose(false);
    progress.setRange(0, 100);
    // Steps come by the hundred per year of data; the bar moves by percents,
    // which spares most of the repaints.
    const auto showStep = [&progress](int done, int total) {
        const int percent = int(qint64(done) * 100 / qMax(total, 1));
        if (percent != progress.value())
            progress.setValue(percent);
    };
    const QMetaObject::Connection step =
        connect(m_controller, &KController::conversionProgress, &progress, showStep);
    QString error;
    const bool converted = m_controller->convertStoredData(conversion, &error);
    disconnect(step);
    progress.reset();
    if (!converted)
        showProblem(tr("The lists were not changed."), error);
    return converted;
}

void PrefWinController::writeSettings()
{
    Settings settings;
    const Settings::StartWindow windows[4] = {Settings::StartWindow::Input,
                                              Settings::StartWindow::List,
                                              Settings::StartWindow::Graph,
                                              Settings::StartWindow::Balance};
    for (int i = 0; i < 4; ++i)
        settings.setOpenWindow(windows[i], m_openWindow[i]->isChecked());
    settings.setReturnInputDefault(m_returnInput->currentData().toInt());
    settings.setAppearance(Settings::Appearance(m_appearance->currentData().toInt()));
    const bool closingDayWas = settings.changeMonthLastDate();
    const int dayWas = settings.monthLastDate();
    settings.setChangeMonthLastDate(m_setLastDate->isChecked());
    // 0 stands for the stored day, kept as it is.
    const int day = m_lastDate->value() > 0 ? m_lastDate->value() : dayWas;
    if (m_lastDate->value() > 0)
        settings.setMonthLastDate(day);
    settings.sync();
    if (closingDayWas != m_setLastDate->isChecked() || dayWas != day)
        emit Notifications::instance()->lastDateHasChanged();
}

void PrefWinController::accept()
{
    if (!convertAndWriteLists())
        return; // the window stays open with the edits, so the user may try again
    writeSettings();
    emit Notifications::instance()->listPreferenceHasUpDated();
    QDialog::accept();
}

void PrefWinController::done(int result)
{
    Settings().setSavedLayout(SettingsKeys::PreferenceWindow, saveGeometry());
    if (result == QDialog::Rejected && m_appearanceBefore)
        Appearance::apply(*m_appearanceBefore);
    m_appearanceBefore.reset();
    QDialog::done(result);
    // Every opening starts from what is stored.
    readListFromDefault();
    readSettings();
    if (m_firstSetting) {
        setFirstSetting(false);
        emit showInputWindowRequested();
    }
}

void PrefWinController::showProblem(const QString &text, const QString &details)
{
    auto *box = new QMessageBox(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(details);
    box->open();
}
