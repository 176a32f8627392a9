#pragma once

#include "exchange/FileToImport.h"
#include "exchange/LedgerImport.h"

#include <QDialog>

#include <memory>

class ImportPreviewModel;
class KController;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableView;
class QTableWidget;
class QWidget;

// The preview of an import: every row of the file as it would be booked,
// with a tick to leave any out (entries booked already start unticked),
// the rows that could not be read with their lines and reasons, and the
// choices that change how the file is read: its format, and for CSV the
// encoding, the order of the date's numbers and what each column holds
// (remembered for the next file with the same header line); and where each
// category and payment mode of the file that matches none of ours goes
// (remembered by its name). Import books the ticked rows as one change and
// shows what went where.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    ImportDialog(KController *ledger, const QString &path, QWidget *parent = nullptr);
    ~ImportDialog() override;

    // Books the ticked rows, with a progress dialog whose Cancel keeps
    // nothing. True when booked; the report, or why nothing was booked, is
    // then in reportText().
    bool book();
    QString reportText() const { return m_reportText; }

private:
    void buildCsvControls();
    // Reads the file again with the choices made, then maps it.
    void readFile();
    void mapRows();
    void showCsvMapping();
    // A row for each name of the file without a match, with where it goes.
    void showUnmatched();
    void updateSummary();
    CsvMapping chosenCsvMapping() const;

    KController *m_ledger;
    FileToImport m_file;
    Importer::Format m_format;
    std::optional<CsvMapping> m_csvMapping;
    CsvImporter::Reading m_reading;
    std::unique_ptr<LedgerImport> m_import;
    QString m_reportText;

    QComboBox *m_formatBox;
    QWidget *m_csvControls;
    QComboBox *m_encodingBox;
    QComboBox *m_dateOrderBox;
    QCheckBox *m_headerBox;
    QTableWidget *m_columns;
    QComboBox *m_unmatchedBox;
    QLineEdit *m_newCategoryEdit;
    QLabel *m_namesLabel;
    QTableWidget *m_names;
    QTableView *m_table;
    ImportPreviewModel *m_model;
    QLabel *m_problemsLabel;
    QListWidget *m_problems;
    QLabel *m_summary;
    QPushButton *m_importButton;
};
