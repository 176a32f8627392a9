// The other computer of a shared data folder: changes month files the way a
// second Penwick and a sync service would bring them, each file written whole
// beside the old one and renamed over it. Commands, in order:
//   edit Y M N TEXT   the N-th entry (from 1, in file order) gets the details
//   delete Y M N      the N-th entry goes
//   add Y M DAY TEXT  a new entry
//   remove Y M        the month file goes
//   touch NAME        a file of that name appears
//   categories A,B,…  the list file gets these category names
#include "ledger/DataFolder.h"
#include "model/MonthDataList.h"
#include "storage/ListFile.h"
#include "storage/MonthFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMap>

#include <cstdio>

namespace {

bool replace(const QString &path, const QByteArray &content)
{
    const QString side = path + QStringLiteral(".peer");
    QFile file(side);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return false;
    file.close();
    return std::rename(QFile::encodeName(side).constData(), QFile::encodeName(path).constData()) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty())
        return 2;
    const QString folder = args.takeFirst();
    QMap<QString, std::shared_ptr<MonthDataList>> months;
    auto month = [&](const QString &year, const QString &number) {
        const QString path = DataFolder::filePathForYear(folder, year.toInt(), number.toInt());
        if (!months.contains(path)) {
            QFile file(path);
            std::shared_ptr<MonthDataList> list;
            if (file.open(QIODevice::ReadOnly))
                list = MonthFile::decode(file.readAll(), nullptr);
            months.insert(path, list ? list
                                     : std::make_shared<MonthDataList>(year.toInt(), number.toInt()));
        }
        return months.value(path);
    };
    while (!args.isEmpty()) {
        const QString command = args.takeFirst();
        if (command == u"edit" && args.size() >= 4) {
            const auto list = month(args.at(0), args.at(1));
            list->dataListArray().at(args.at(2).toInt() - 1)->setDetails(args.at(3));
            args.remove(0, 4);
        } else if (command == u"delete" && args.size() >= 3) {
            const auto list = month(args.at(0), args.at(1));
            PaymentArray records = list->dataListArray();
            records.removeAt(args.at(2).toInt() - 1);
            list->setDataListArray(records);
            args.remove(0, 3);
        } else if (command == u"add" && args.size() >= 4) {
            const auto list = month(args.at(0), args.at(1));
            PaymentArray records = list->dataListArray();
            records.append(std::make_shared<PaymentData>(list->year(), list->month(),
                                                         args.at(2).toInt(), 0, args.at(3), 100, 0));
            list->setDataListArray(records);
            args.remove(0, 4);
        } else if (command == u"remove" && args.size() >= 2) {
            if (!QFile::remove(DataFolder::filePathForYear(folder, args.at(0).toInt(), args.at(1).toInt())))
                return 1;
            args.remove(0, 2);
        } else if (command == u"touch" && !args.isEmpty()) {
            if (!replace(QDir(folder).filePath(args.takeFirst()), "left by a sync service"))
                return 1;
        } else if (command == u"categories" && !args.isEmpty()) {
            QVariantList names;
            for (const QString &name : args.takeFirst().split(u','))
                names.append(name);
            if (!ListFile::setPreferenceDataListForKey(folder, names, ListFile::CategoryList))
                return 1;
        } else {
            return 2;
        }
    }
    for (auto it = months.cbegin(); it != months.cend(); ++it) {
        if (!replace(it.key(), MonthFile::encode(*it.value())))
            return 1;
    }
    return 0;
}
