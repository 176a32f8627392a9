#include "ImportDialog.h"

#include "ImportPreviewModel.h"

#include "ledger/KController.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

using Role = CsvMapping::Role;

// The columns of the table of names without a match.
enum NameColumn { NameList, NameInFile, NameBookedAs, NameColumns };
// A name's box: where its entries go; the first entry leaves it with the
// others.
constexpr int kWithTheOthers = -1;

// The roles a column can take, as the column boxes offer them.
const QList<Role> kRoles{Role::Ignore, Role::Date,     Role::Amount, Role::Debit,
                         Role::Credit, Role::Details, Role::Category, Role::Payway};

QString roleName(Role role)
{
    switch (role) {
    case Role::Date:
        return ImportDialog::tr("Date");
    case Role::Amount:
        return ImportDialog::tr("Amount");
    case Role::Debit:
        return ImportDialog::tr("Money out");
    case Role::Credit:
        return ImportDialog::tr("Money in");
    case Role::Details:
        return ImportDialog::tr("Details");
    case Role::Category:
        return ImportDialog::tr("Category");
    case Role::Payway:
        return ImportDialog::tr("Payway");
    case Role::Ignore:
        break;
    }
    return ImportDialog::tr("(not imported)");
}

QString dateOrderName(DateOrder order)
{
    switch (order) {
    case DateOrder::DayMonthYear:
        return ImportDialog::tr("Day, month, year");
    case DateOrder::MonthDayYear:
        return ImportDialog::tr("Month, day, year");
    case DateOrder::YearMonthDay:
        break;
    }
    return ImportDialog::tr("Year, month, day");
}

} // namespace

ImportDialog::ImportDialog(KController *ledger, const QString &path, QWidget *parent)
    : QDialog(parent)
    , m_ledger(ledger)
    , m_file(path)
    , m_format(m_file.format())
{
    setWindowTitle(tr("Import %1").arg(QFileInfo(path).fileName()));

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    m_formatBox = new QComboBox(this);
    m_formatBox->addItem(tr("CSV"), int(Importer::Format::Csv));
    m_formatBox->addItem(tr("QIF"), int(Importer::Format::Qif));
    m_formatBox->addItem(tr("OFX or QFX"), int(Importer::Format::Ofx));
    m_formatBox->addItem(tr("HomeBank"), int(Importer::Format::HomeBank));
    m_formatBox->setCurrentIndex(m_formatBox->findData(int(m_format)));
    form->addRow(tr("&Format:"), m_formatBox);

    auto *unmatched = new QHBoxLayout;
    m_unmatchedBox = new QComboBox(this);
    m_unmatchedBox->setObjectName(u"unmatchedBox"_s);
    const QStringList categories = m_ledger->categoryList();
    for (qsizetype i = 0; i + 1 < categories.size(); ++i)
        m_unmatchedBox->addItem(categories.at(i), int(i));
    m_unmatchedBox->addItem(tr("A new category:"), -1);
    m_newCategoryEdit = new QLineEdit(tr("Imported"), this);
    m_newCategoryEdit->setEnabled(false);
    unmatched->addWidget(m_unmatchedBox, 1);
    unmatched->addWidget(m_newCategoryEdit, 1);
    auto *unmatchedLabel = new QLabel(tr("Categories &without a match:"), this);
    unmatchedLabel->setBuddy(m_unmatchedBox);
    form->addRow(unmatchedLabel, unmatched);

    m_names = new QTableWidget(0, NameColumns, this);
    m_names->setObjectName(u"unmatchedNames"_s);
    m_names->setHorizontalHeaderLabels({tr("List"), tr("In the file"), tr("Booked as")});
    m_names->verticalHeader()->hide();
    m_names->setWordWrap(false);
    m_names->setSelectionMode(QAbstractItemView::NoSelection);
    m_names->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The names as long as they are; the boxes take the rest.
    m_names->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_names->horizontalHeader()->setSectionResizeMode(NameBookedAs, QHeaderView::Stretch);
    m_namesLabel = new QLabel(tr("Names without a &match:"), this);
    m_namesLabel->setBuddy(m_names);
    form->addRow(m_namesLabel, m_names);
    layout->addLayout(form);

    buildCsvControls();
    layout->addWidget(m_csvControls);

    auto *splitter = new QSplitter(Qt::Vertical, this);
    m_table = new QTableView(splitter);
    m_table->setObjectName(u"previewTable"_s);
    m_model = new ImportPreviewModel(this);
    m_table->setModel(m_model);
    m_table->verticalHeader()->hide();
    // One line a row, however long the details.
    m_table->setWordWrap(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::Details, QHeaderView::Stretch);
    auto *problems = new QWidget(splitter);
    auto *problemsLayout = new QVBoxLayout(problems);
    problemsLayout->setContentsMargins(0, 0, 0, 0);
    m_problemsLabel = new QLabel(tr("Rows that could not be read (never booked):"), problems);
    m_problems = new QListWidget(problems);
    m_problems->setObjectName(u"problemList"_s);
    m_problemsLabel->setBuddy(m_problems);
    // A few lines; the rows to be booked get the rest.
    m_problems->setMaximumHeight(m_problems->fontMetrics().height() * 5);
    problemsLayout->addWidget(m_problemsLabel);
    problemsLayout->addWidget(m_problems);
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 1);

    layout->addWidget(splitter, 1);

    m_summary = new QLabel(this);
    m_summary->setObjectName(u"importSummary"_s);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_summary);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_importButton = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    m_importButton->setDefault(true);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_importButton, &QPushButton::clicked, this, [this] {
        if (!book()) {
            QMessageBox box(QMessageBox::Warning, tr("Import"), tr("Nothing was imported."),
                            QMessageBox::Ok, this);
            box.setInformativeText(m_reportText);
            box.exec();
            return;
        }
        QMessageBox box(QMessageBox::Information, tr("Import"), tr("The import is booked."),
                        QMessageBox::Ok, this);
        box.setInformativeText(m_reportText);
        box.exec();
        accept();
    });
    connect(m_formatBox, &QComboBox::currentIndexChanged, this, [this] {
        m_format = Importer::Format(m_formatBox->currentData().toInt());
        m_csvMapping.reset();
        readFile();
    });
    connect(m_unmatchedBox, &QComboBox::currentIndexChanged, this, [this] {
        m_newCategoryEdit->setEnabled(m_unmatchedBox->currentData().toInt() < 0);
        mapRows();
    });
    connect(m_newCategoryEdit, &QLineEdit::editingFinished, this, &ImportDialog::mapRows);
    connect(m_model, &ImportPreviewModel::tickChanged, this, &ImportDialog::updateSummary);

    resize(880, 620);
    readFile();
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::buildCsvControls()
{
    m_csvControls = new QWidget(this);
    auto *layout = new QVBoxLayout(m_csvControls);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    m_encodingBox = new QComboBox(m_csvControls);
    for (const auto &[name, label] :
         {std::pair{u"UTF-8"_s, u"UTF-8"_s}, std::pair{u"UTF-16"_s, u"UTF-16"_s},
          std::pair{u"CP932"_s, tr("Japanese (Shift_JIS, CP932)")},
          std::pair{u"EUC-JP"_s, tr("Japanese (EUC-JP)")},
          std::pair{u"windows-1252"_s, tr("Western (Windows-1252)")}})
        m_encodingBox->addItem(label, name);
    auto *encodingLabel = new QLabel(tr("&Encoding:"), m_csvControls);
    encodingLabel->setBuddy(m_encodingBox);
    m_dateOrderBox = new QComboBox(m_csvControls);
    m_dateOrderBox->setObjectName(u"dateOrderBox"_s);
    for (const DateOrder order : {DateOrder::YearMonthDay, DateOrder::DayMonthYear, DateOrder::MonthDayYear})
        m_dateOrderBox->addItem(dateOrderName(order), int(order));
    auto *dateLabel = new QLabel(tr("&Dates:"), m_csvControls);
    dateLabel->setBuddy(m_dateOrderBox);
    m_headerBox = new QCheckBox(tr("First row &names the columns"), m_csvControls);
    row->addWidget(encodingLabel);
    row->addWidget(m_encodingBox);
    row->addSpacing(12);
    row->addWidget(dateLabel);
    row->addWidget(m_dateOrderBox);
    row->addSpacing(12);
    row->addWidget(m_headerBox);
    row->addStretch(1);
    layout->addLayout(row);

    // One box per column of the file, under the column's first text.
    m_columns = new QTableWidget(1, 0, m_csvControls);
    m_columns->verticalHeader()->hide();
    m_columns->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_columns->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_columns->setFocusPolicy(Qt::NoFocus);
    m_columns->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    layout->addWidget(m_columns);

    const auto reread = [this] {
        m_csvMapping = chosenCsvMapping();
        readFile();
    };
    connect(m_encodingBox, &QComboBox::activated, this, reread);
    connect(m_dateOrderBox, &QComboBox::activated, this, reread);
    connect(m_headerBox, &QCheckBox::toggled, this, reread);
}

CsvMapping ImportDialog::chosenCsvMapping() const
{
    CsvMapping mapping = m_reading.mapping;
    mapping.encoding = m_encodingBox->currentData().toString();
    mapping.dateOrder = DateOrder(m_dateOrderBox->currentData().toInt());
    mapping.hasHeader = m_headerBox->isChecked();
    mapping.roles.clear();
    for (int column = 0; column < m_columns->columnCount(); ++column) {
        const auto *box = qobject_cast<QComboBox *>(m_columns->cellWidget(0, column));
        mapping.roles.append(box ? kRoles.value(box->currentIndex()) : Role::Ignore);
    }
    return mapping;
}

void ImportDialog::readFile()
{
    const bool csv = m_format == Importer::Format::Csv;
    m_csvControls->setVisible(csv);
    m_reading = m_file.readAs(m_format, m_csvMapping);
    if (csv)
        showCsvMapping();
    ImportResult imported = m_reading.result;
    m_problems->clear();
    for (const RowProblem &problem : std::as_const(imported.problems))
        m_problems->addItem(tr("Line %1: %2").arg(problem.line).arg(problem.reason));
    m_problemsLabel->setVisible(!imported.problems.isEmpty());
    m_problems->setVisible(!imported.problems.isEmpty());
    m_model->setImport(nullptr, {});
    m_import = std::make_unique<LedgerImport>(*m_ledger, std::move(imported),
                                              ImportMapping(m_ledger->categoryList(), m_ledger->paywayList()));
    showUnmatched();
    mapRows();
}

void ImportDialog::showUnmatched()
{
    const ImportMapping remembered = LedgerImport::mappingFor(*m_ledger);
    const ImportMapping::Unmatched names = remembered.unmatched(m_import->imported());
    const QStringList categories = m_ledger->categoryList();
    const QStringList payways = m_ledger->paywayList();
    m_names->setRowCount(0);
    const auto addRow = [this](bool category, const QString &name, const QStringList &ours,
                               std::optional<int> chosen) {
        const int row = m_names->rowCount();
        m_names->insertRow(row);
        auto *list = new QTableWidgetItem(category ? tr("Category") : tr("Payway"));
        list->setData(Qt::UserRole, category);
        m_names->setItem(row, NameList, list);
        auto *source = new QTableWidgetItem(name);
        source->setToolTip(name);
        m_names->setItem(row, NameInFile, source);
        auto *box = new QComboBox(m_names);
        box->addItem(QString(), kWithTheOthers);
        for (qsizetype i = 0; i < ours.size(); ++i)
            box->addItem(ours.at(i), int(i));
        box->setCurrentIndex(std::max(0, box->findData(chosen.value_or(kWithTheOthers))));
        box->setAccessibleName(tr("%1 booked as").arg(name));
        connect(box, &QComboBox::activated, this, &ImportDialog::mapRows);
        m_names->setCellWidget(row, NameBookedAs, box);
    };
    // Income takes what the file marks as income; the rest may not go there.
    for (const QString &name : names.categories)
        addRow(true, name, categories.mid(0, categories.size() - 1), remembered.categoryChosenFor(name));
    for (const QString &name : names.payways)
        addRow(false, name, payways, remembered.paywayChosenFor(name));
    const bool any = m_names->rowCount() > 0;
    m_names->setVisible(any);
    m_namesLabel->setVisible(any);
    if (!any)
        return;
    // A few rows at a time; a file of many names scrolls.
    const int rows = std::min(m_names->rowCount(), 5);
    m_names->setFixedHeight(m_names->horizontalHeader()->sizeHint().height() + rows * m_names->rowHeight(0)
                            + 2 * m_names->frameWidth());
}

void ImportDialog::showCsvMapping()
{
    const CsvMapping &mapping = m_reading.mapping;
    const QSignalBlocker encodingBlock(m_encodingBox), dateBlock(m_dateOrderBox), headerBlock(m_headerBox);
    if (m_encodingBox->findData(mapping.encoding) < 0)
        m_encodingBox->addItem(mapping.encoding, mapping.encoding);
    m_encodingBox->setCurrentIndex(m_encodingBox->findData(mapping.encoding));
    m_dateOrderBox->setCurrentIndex(m_dateOrderBox->findData(int(m_reading.result.dateOrder)));
    // Said only when the file leaves it open.
    m_dateOrderBox->setToolTip(m_reading.result.dateOrders.size() > 1
                                   ? tr("The dates of this file can be read more than one way.")
                                   : QString());
    m_headerBox->setChecked(mapping.hasHeader);

    m_columns->clear();
    m_columns->setColumnCount(int(m_reading.header.size()));
    m_columns->setHorizontalHeaderLabels(m_reading.header);
    for (int column = 0; column < m_columns->columnCount(); ++column) {
        auto *box = new QComboBox(m_columns);
        for (const Role role : kRoles)
            box->addItem(roleName(role));
        box->setCurrentIndex(int(kRoles.indexOf(mapping.roles.value(column, Role::Ignore))));
        box->setAccessibleName(tr("Column %1").arg(column + 1));
        connect(box, &QComboBox::activated, this, [this] {
            m_csvMapping = chosenCsvMapping();
            readFile();
        });
        m_columns->setCellWidget(0, column, box);
    }
    m_columns->resizeColumnsToContents();
    m_columns->resizeRowsToContents();
    // Room for a scroll bar only when the columns are wider than the dialog.
    const bool scrolls = m_columns->horizontalHeader()->length() > width() - 2 * layout()->contentsMargins().left();
    m_columns->setFixedHeight(m_columns->horizontalHeader()->sizeHint().height() + m_columns->rowHeight(0)
                              + 2 * m_columns->frameWidth()
                              + (scrolls ? m_columns->horizontalScrollBar()->sizeHint().height() : 0));
}

void ImportDialog::mapRows()
{
    if (!m_import)
        return;
    ImportMapping mapping = LedgerImport::mappingFor(*m_ledger);
    const int unmatched = m_unmatchedBox->currentData().toInt();
    const QString newName = m_newCategoryEdit->text().trimmed();
    if (unmatched >= 0)
        mapping.setUnmatchedCategory(unmatched);
    else if (!newName.isEmpty())
        mapping.setNewCategory(newName);
    const QStringList payways = m_ledger->paywayList();
    for (int row = 0; row < m_names->rowCount(); ++row) {
        auto *box = qobject_cast<QComboBox *>(m_names->cellWidget(row, NameBookedAs));
        const bool category = m_names->item(row, NameList)->data(Qt::UserRole).toBool();
        const QString name = m_names->item(row, NameInFile)->text();
        const int chosen = box->currentData().toInt();
        if (category)
            mapping.setCategoryFor(name, chosen);
        else
            mapping.setPaywayFor(name, chosen);
        const QString others = category ? (unmatched >= 0 ? m_unmatchedBox->currentText() : newName)
                                         : payways.value(0);
        box->setItemText(0, tr("Like the others (%1)").arg(others));
    }
    // Ticks survive a change of mapping; the rows are the same.
    QList<bool> ticks;
    for (qsizetype i = 0; i < m_import->mapped().entries.size(); ++i)
        ticks.append(m_import->isTicked(i));
    ImportResult imported = m_import->imported();
    m_model->setImport(nullptr, {});
    m_import = std::make_unique<LedgerImport>(*m_ledger, std::move(imported), mapping);
    if (ticks.size() == m_import->mapped().entries.size()) {
        for (qsizetype i = 0; i < ticks.size(); ++i)
            m_import->setTicked(i, ticks.at(i));
    }
    m_model->setImport(m_import.get(), m_ledger->paywayList());
    m_table->resizeColumnsToContents();
    m_table->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::Details, QHeaderView::Stretch);
    updateSummary();
}

void ImportDialog::updateSummary()
{
    if (m_import->imported().failed()) {
        m_summary->setText(m_import->imported().error);
        m_importButton->setEnabled(false);
        return;
    }
    const LedgerImport::Report report = m_import->report();
    m_summary->setText(LedgerImport::summary(report));
    m_importButton->setEnabled(report.booked > 0);
}

bool ImportDialog::book()
{
    if (m_format == Importer::Format::Csv)
        m_reading.mapping.remember(m_reading.header);
    const int count = m_import->report().booked;
    QProgressDialog progress(tr("Booking %n entries…", nullptr, count), tr("Cancel"), 0, 0, this);
    progress.setWindowTitle(tr("Import"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(400);
    progress.setAutoClose(false);
    progress.setAutoReset(false);
    QString error;
    const bool booked = m_import->book(&error, [&progress](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        return !progress.wasCanceled();
    });
    progress.reset();
    if (!booked) {
        m_reportText = error;
        return false;
    }
    m_reportText = LedgerImport::summary(m_import->report());
    return true;
}
