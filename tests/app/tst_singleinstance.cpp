#include "SingleInstance.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {
// A later launch, as another process would make it: its own lock object and
// blocking socket calls, off the first instance's event loop.
SingleInstance::Role launchAgain(const QString &folder, const QStringList &request)
{
    SingleInstance::Role role = SingleInstance::Role::Failed;
    QThread *launch = QThread::create([&] { role = SingleInstance(folder).claimOrForward(request); });
    launch->start();
    while (!launch->wait(10))
        QCoreApplication::processEvents();
    delete launch;
    return role;
}
} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void laterLaunchesHandOverTheirRequest()
    {
        QTemporaryDir folder;
        SingleInstance first(folder.path());
        QCOMPARE(first.claimOrForward({}), SingleInstance::Role::Primary);
        QSignalSpy received(&first, &SingleInstance::requestReceived);

        const QStringList files{u"/somewhere/Data_2006_5.Penwick"_s, u"/else/Data 2007_1.Penwick"_s};
        QCOMPARE(launchAgain(folder.path(), files), SingleInstance::Role::Forwarded);
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toStringList(), files);

        // Nothing to open: the running instance is just asked to come forward.
        QCOMPARE(launchAgain(folder.path(), {}), SingleInstance::Role::Forwarded);
        QTRY_COMPARE(received.count(), 2);
        QCOMPARE(received.at(1).at(0).toStringList(), QStringList());
    }

    void foldersAreIndependent()
    {
        QTemporaryDir one;
        QTemporaryDir two;
        QVERIFY(SingleInstance::serverName(one.path()) != SingleInstance::serverName(two.path()));
        // The same folder by another spelling is the same folder.
        QCOMPARE(SingleInstance::serverName(one.path() + u"/."_s),
                 SingleInstance::serverName(one.path()));

        SingleInstance first(one.path());
        SingleInstance second(two.path());
        QCOMPARE(first.claimOrForward({}), SingleInstance::Role::Primary);
        QCOMPARE(second.claimOrForward({}), SingleInstance::Role::Primary);
    }

    void theFolderIsFreeAgainAfterTheFirstEnds()
    {
        QTemporaryDir folder;
        {
            SingleInstance first(folder.path());
            QCOMPARE(first.claimOrForward({}), SingleInstance::Role::Primary);
        }
        QVERIFY(!QFileInfo::exists(QDir(folder.path()).filePath(u".penwick.lock"_s)));
        SingleInstance next(folder.path());
        QCOMPARE(next.claimOrForward({}), SingleInstance::Role::Primary);
    }
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
