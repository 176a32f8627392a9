// The composition root: settles the application's identity and language,
// makes sure one instance serves a data folder, and hands over to the
// application controller.

#include "ScriptService.h"
#include "SearchService.h"
#include "SingleInstance.h"
#include "UnixSignalQuit.h"

#include "app/KAppController.h"
#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "settings/Settings.h"
#include "widgets/Appearance.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusConnection>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

void installTranslators(QApplication &app)
{
    auto *qt = new QTranslator(&app);
    if (qt->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(qt);

    // English is the fallback: the texts are looked up by key, and a key is
    // not always a sentence.
    auto *own = new QTranslator(&app);
    if (own->load(QLocale(), QStringLiteral("penwick"), QStringLiteral("_"), QStringLiteral(":/i18n"))
        || own->load(QStringLiteral("penwick_en"), QStringLiteral(":/i18n")))
        QApplication::installTranslator(own);
}

QStringList monthFilesOf(const QStringList &arguments)
{
    QStringList files;
    for (const QString &argument : arguments)
        files.append(QFileInfo(argument).absoluteFilePath());
    return files;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Penwick"));
    QCoreApplication::setApplicationName(QStringLiteral("Penwick"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PENWICK_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Penwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral(PENWICK_APP_ID));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(PENWICK_APP_ID),
                                                 QIcon(QStringLiteral(":/icons/penwick.svg"))));
    installTranslators(app);

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "A household account book."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption background(
        QStringLiteral("background"),
        QCoreApplication::translate("main", "Start without a window, to answer the desktop's search; "
                                            "the windows open when the program is launched again."));
    parser.addOption(background);
    const QCommandLineOption appearance(
        QStringLiteral("appearance"),
        QCoreApplication::translate("main", "Look as the desktop has it (system), or light or dark, "
                                            "for this run only; the preferences keep their choice."),
        QStringLiteral("system|light|dark"));
    parser.addOption(appearance);
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QCoreApplication::translate("main", "Month files to show (Data_YEAR_MONTH.Penwick)."),
                                 QStringLiteral("[files...]"));
    parser.process(app);
    const QStringList files = monthFilesOf(parser.positionalArguments());
    std::optional<Settings::Appearance> look;
    if (parser.isSet(appearance)) {
        look = Settings::appearanceFromName(parser.value(appearance));
        if (!look) {
            std::fprintf(stderr, "%s\n",
                         qPrintable(QCoreApplication::translate(
                                        "main", "--appearance takes system, light or dark, not %1.")
                                        .arg(parser.value(appearance))));
            return 2;
        }
    }

    SingleInstance instance(DataFolder::dataFolderPath());
    switch (instance.claimOrForward(files)) {
    case SingleInstance::Role::Forwarded:
        return 0;
    case SingleInstance::Role::Failed:
        QMessageBox::critical(nullptr, QStringLiteral("Penwick"), instance.errorString());
        return 1;
    case SingleInstance::Role::Primary:
        break;
    }

    Appearance::apply(look.value_or(Settings().appearance()));
    KAppController controller;
    for (const QString &file : files) {
        if (!controller.openFile(file))
            std::fprintf(stderr, "%s\n",
                         qPrintable(QCoreApplication::translate(
                                        "main", "%1 is not a month file of Penwick; it is left alone.")
                                        .arg(file)));
    }
    QObject::connect(&instance, &SingleInstance::requestReceived, &controller,
                     [&controller](const QStringList &request) {
                         for (const QString &file : request)
                             controller.openFile(file);
                         controller.activate();
                     });

    QObject::connect(&controller, &KAppController::dataFolderChanged, &instance,
                     [&instance](const QString &folder) {
                         if (!instance.moveTo(folder))
                             qWarning("%s", qPrintable(instance.errorString()));
                     });

    // Scripts reach the program on the session bus; without one (a bare X
    // server, say) it works as usual, only not for scripts.
    ScriptService scripting(&controller, QDBusConnection::sessionBus());
    if (!scripting.start())
        qInfo("Scripting is not available: %s", qPrintable(scripting.errorString()));
    SearchService search(&controller, QDBusConnection::sessionBus());
    if (!search.start())
        qInfo("The desktop's search is not available: %s", qPrintable(search.errorString()));

    // Started for the desktop's search, the program leaves again once the
    // desktop has stopped asking for a while and the user has not come.
    QTimer idle;
    idle.setSingleShot(true);
    idle.setInterval(std::chrono::minutes(5));
    QObject::connect(&idle, &QTimer::timeout, &controller, [&controller] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        if (std::none_of(windows.cbegin(), windows.cend(), [](const QWidget *w) { return w->isVisible(); }))
            controller.terminate();
    });

    // Closing the last window quits as the menu does: months that could not
    // be saved are asked about first.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&app, &QGuiApplication::lastWindowClosed, &controller,
                     &KAppController::lastWindowClosed);

    UnixSignalQuit signalQuit;
    QObject::connect(&signalQuit, &UnixSignalQuit::quitRequested, &controller,
                     &KAppController::terminate);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &controller,
                     &KAppController::applicationWillTerminate);
    // The session may end without quitting us in order: save when asked to.
    QObject::connect(&app, &QGuiApplication::commitDataRequest, controller.ledger(),
                     &KController::saveAllEditedData, Qt::DirectConnection);

    if (parser.isSet(background)) {
        QObject::connect(&search, &SearchService::searched, &idle, qOverload<>(&QTimer::start));
        idle.start();
        controller.startInBackground();
    } else {
        controller.confirmPassword();
    }
    return app.exec();
}
