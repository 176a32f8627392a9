#include "prefs/MergeItemDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MergeItemDialog::MergeItemDialog(const QStringList &names, int row, QWidget *parent)
    : QDialog(parent)
    , m_targets(new QComboBox(this))
    , m_row(row)
{
    setWindowTitle(tr("Delete Item"));
    setObjectName(QStringLiteral("convertWindow"));
    auto *message = new QLabel(
        tr("<b>Delete “%1”?</b><br>Entries booked under it, in every month, are kept and "
           "moved to another item.")
            .arg(names.value(row).toHtmlEscaped()),
        this);
    message->setObjectName(QStringLiteral("convertMessageTF"));
    message->setWordWrap(true);
    message->setMinimumWidth(message->fontMetrics().averageCharWidth() * 50);
    m_targets->setObjectName(QStringLiteral("convertMenuPp"));
    for (int i = 0; i < names.size(); ++i) {
        if (i != row)
            m_targets->addItem(names.at(i), i);
    }
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Move its entries to:"), m_targets);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Delete"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(message);
    layout->addSpacing(message->fontMetrics().height() / 2);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

int MergeItemDialog::targetRow() const
{
    return m_targets->currentData().toInt();
}
