#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class MonthDataList;

// The content of a month file: one month list archived as the root object.
namespace MonthFile {

QByteArray encode(const MonthDataList &list);
// The month list the data holds, or null with the reason in `error`.
std::shared_ptr<MonthDataList> decode(const QByteArray &data, QString *error);

} // namespace MonthFile
