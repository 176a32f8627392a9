#pragma once

#include "ImportMapping.h"
#include "Importer.h"

#include "ledger/KController.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>

// An import into the ledger as the preview, the script service and
// penwickctl run it: the rows of a file put onto the ledger's lists,
// checked against their months for entries booked already (those start
// unticked), and the ticked ones booked as one change.
class LedgerImport
{
    Q_DECLARE_TR_FUNCTIONS(LedgerImport)

public:
    LedgerImport(KController &ledger, ImportResult imported, const ImportMapping &mapping);

    // The file as read; the rows as they would be booked.
    const ImportResult &imported() const { return m_imported; }
    const ImportMapping::Result &mapped() const { return m_mapped; }
    bool isTicked(qsizetype row) const { return m_ticked.at(row); }
    void setTicked(qsizetype row, bool ticked) { m_ticked[row] = ticked; }
    // The category a new one is added as, when the mapping adds one.
    QString newCategory() const;

    // What booking does, or did.
    struct Report
    {
        // year * 100 + month to the entries booked into it.
        QMap<int, int> months;
        int booked = 0;
        // Skipped as booked already, skipped by choice, and rows unreadable.
        int duplicates = 0;
        int leftOut = 0;
        QList<RowProblem> problems;
        // Source categories without a category of ours, and where they go.
        QStringList unmatched;
        QString unmatchedTo;
        QString newCategory;
    };
    Report report() const;
    // The report in a few lines for a person.
    static QString summary(const Report &report);
    // The report for scripts; with the entries, each with what it maps to
    // and whether it is booked, for a dry run.
    QJsonObject toJson(const Report &report, bool withEntries) const;

    // Adds the new category first when the mapping asks for one (which
    // renumbers income), then books the ticked rows as one change, and
    // remembers where the unmatched names of the file went.
    // False, with the reason, when nothing was booked.
    bool book(QString *error = nullptr, const KController::ImportProgress &progress = {});

    // The mapping onto the ledger's lists, with the choices of earlier
    // imports.
    static ImportMapping mappingFor(const KController &ledger);

private:
    KController &m_ledger;
    ImportMapping m_mapping;
    ImportResult m_imported;
    ImportMapping::Result m_mapped;
    QList<bool> m_ticked;
};
