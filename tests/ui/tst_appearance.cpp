#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "graph/CircleGraphView.h"
#include "ledger/KController.h"
#include "prefs/PrefWinController.h"
#include "settings/Settings.h"
#include "widgets/Appearance.h"
#include "widgets/ThemeColors.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QProxyStyle>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using Look = Settings::Appearance;
Q_DECLARE_METATYPE(Look)
Q_DECLARE_METATYPE(QPalette::ColorRole)

namespace {

// The colour near the child's corner as the window's backing store holds it:
// what was last painted there, not a fresh rendering.
QColor shownAt(QWidget &window, const QWidget *child)
{
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    return shown.pixelColor(child->geometry().topLeft() + QPoint(4, 4));
}

const char *roleName(QPalette::ColorRole role)
{
    return QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role);
}

} // namespace

class TestAppearance : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Appearance::apply(Look::System);
    }

    void textReadsOnItsGround_data()
    {
        QTest::addColumn<Look>("look");
        QTest::addColumn<QPalette::ColorRole>("text");
        QTest::addColumn<QPalette::ColorRole>("ground");
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::Link, QPalette::Base},
            {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::PlaceholderText, QPalette::Base},
        };
        for (const auto &[name, look] : {std::pair{"light", Look::Light}, std::pair{"dark", Look::Dark}}) {
            for (const auto &[text, ground] : pairs)
                QTest::addRow("%s %s on %s", name, roleName(text), roleName(ground))
                    << look << text << ground;
        }
    }

    void textReadsOnItsGround()
    {
        QFETCH(Look, look);
        QFETCH(QPalette::ColorRole, text);
        QFETCH(QPalette::ColorRole, ground);
        Appearance::apply(look);
        const QPalette palette = QApplication::palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const double ratio =
                ThemeColors::contrastRatio(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(ratio >= 4.5, qPrintable(u"%1:1"_s.arg(ratio)));
        }
        // Disabled text fades but stays apart from its ground.
        QVERIFY(ThemeColors::contrastRatio(palette.color(QPalette::Disabled, text),
                                           palette.color(QPalette::Disabled, ground))
                >= 2);
    }

    void openWindowsRepaintInTheNewColours()
    {
        const QString systemStyle = QApplication::style()->name();
        const QPalette systemPalette = QApplication::palette();

        QWidget window;
        auto *pie = new CircleGraphView(&window);
        (new QVBoxLayout(&window))->addWidget(pie);
        window.resize(300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(shownAt(window, pie), systemPalette.color(QPalette::Base));

        for (const Look look : {Look::Dark, Look::Light}) {
            Appearance::apply(look);
            QCOMPARE(qobject_cast<QProxyStyle *>(QApplication::style())->baseStyle()->name(), u"fusion"_s);
            QTRY_COMPARE(shownAt(window, pie), Appearance::palette(look).color(QPalette::Base));
        }

        // System brings back what the program started with, style and colours.
        Appearance::apply(Look::System);
        QCOMPARE(QApplication::style()->name(), systemStyle);
        QCOMPARE(QApplication::palette(), systemPalette);
        QTRY_COMPARE(shownAt(window, pie), systemPalette.color(QPalette::Base));
    }

    void preferencesShowAChoiceAtOnceAndCancelTakesItBack()
    {
        m_home.freshDataFolder();
        KController controller;
        controller.readListPreference();
        PrefWinController window(&controller);
        auto *choice = child<QComboBox>(&window, u"appearancePp"_s);
        auto *buttons = child<QDialogButtonBox>(&window);
        const auto choose = [&](Look look) {
            choice->setCurrentIndex(choice->findData(int(look)));
            emit choice->activated(choice->currentIndex());
        };

        for (const bool ok : {false, true}) {
            window.show();
            choose(Look::Dark);
            QCOMPARE(Appearance::current(), Look::Dark);
            QTest::mouseClick(buttons->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                              Qt::LeftButton);
            QCOMPARE(Appearance::current(), ok ? Look::Dark : Look::System);
            QCOMPARE(Settings().appearance(), ok ? Look::Dark : Look::System);
        }
        // The window opens again on what is stored.
        QCOMPARE(choice->currentData().toInt(), int(Look::Dark));
    }

private:
    TestDataFolder m_home;
};

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"
