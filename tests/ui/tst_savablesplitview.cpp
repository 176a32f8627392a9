#include "TestDataFolder.h"

#include "settings/SettingsKeys.h"
#include "widgets/SavableSplitView.h"

#include <QLabel>
#include <QSettings>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Name = u"TestSplit"_s;

QSettings settings()
{
    return QSettings(u"Penwick"_s, u"Penwick"_s);
}

// Two panes stacked in a splitter of 300 x 400, shown, named last.
std::unique_ptr<SavableSplitView> stackedSplitView(int panes = 2)
{
    auto view = std::make_unique<SavableSplitView>(Qt::Vertical);
    for (int i = 0; i < panes; ++i)
        view->addWidget(new QLabel(QString::number(i)));
    view->setHandleWidth(4);
    view->resize(300, 400);
    view->show();
    view->setAutosaveName(Name);
    return view;
}

} // namespace

class TestSavableSplitView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        settings().clear();
    }

    void savesAndRestoresTheLayout()
    {
        {
            auto view = stackedSplitView();
            QVERIFY(!view->isVertical());
            view->setSplitViewPosition(u"130 245"_s);
            QCOMPARE(view->sizes(), (QList<int>{130, 400 - 130 - 4}));
            QCOMPARE(view->splitViewPosition(), u"130 266"_s);
            view->saveStatus();
            // Saving twice writes the same.
            view->saveStatus();
            QCOMPARE(settings().value(SettingsKeys::splitViewHorizontalPosition(Name)).toString(),
                     u"130 266"_s);
            QCOMPARE(settings().value(SettingsKeys::splitViewIsVertical(Name)).toBool(), false);
            // Never side by side: no layout of that orientation.
            QVERIFY(!settings().contains(SettingsKeys::splitViewVerticalPosition(Name)));
            view->setSplitViewPosition(u"200 196"_s);
        } // destroyed: saved again
        auto restored = stackedSplitView();
        QCOMPARE(restored->sizes().constFirst(), 200);

        // Each orientation keeps a layout of its own; a new view takes the
        // saved orientation with its layout.
        restored->setVertical(true);
        QVERIFY(restored->isVertical());
        restored->setSplitViewPosition(u"90 206"_s);
        restored->saveStatus();
        QCOMPARE(settings().value(SettingsKeys::splitViewHorizontalPosition(Name)).toString(),
                 u"200 196"_s);
        QCOMPARE(settings().value(SettingsKeys::splitViewVerticalPosition(Name)).toString(),
                 u"90 206"_s);
        QCOMPARE(settings().value(SettingsKeys::splitViewIsVertical(Name)).toBool(), true);
        restored.reset();
        restored = stackedSplitView();
        QVERIFY(restored->isVertical());
        QCOMPARE(restored->sizes().constFirst(), 90);
    }

    void unfitLayoutsAreIgnored_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::newRow("too few panes") << u"100"_s;
        QTest::newRow("too many panes") << u"100 100 100"_s;
        QTest::newRow("pane larger than the view") << u"401 10"_s;
    }

    void unfitLayoutsAreIgnored()
    {
        QFETCH(QString, layout);
        auto view = stackedSplitView();
        view->setSplitViewPosition(u"150 246"_s);
        view->setSplitViewPosition(layout);
        QCOMPARE(view->sizes().constFirst(), 150);

        // Saved, it is ignored when read back too: the panes keep their own sizes.
        view.reset();
        settings().clear();
        const QList<int> unsaved = stackedSplitView()->sizes();
        settings().setValue(SettingsKeys::splitViewHorizontalPosition(Name), layout);
        QCOMPARE(stackedSplitView()->sizes(), unsaved);
    }

    void nothingIsWrittenWithoutAName()
    {
        {
            SavableSplitView view(Qt::Vertical);
            view.addWidget(new QLabel);
            view.addWidget(new QLabel);
            view.show();
            view.saveStatus();
        }
        QVERIFY(settings().allKeys().isEmpty());
    }

private:
    TestDataFolder m_home;
};

QTEST_MAIN(TestSavableSplitView)
#include "tst_savablesplitview.moc"
