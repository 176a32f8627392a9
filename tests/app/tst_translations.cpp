#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Message
{
    QString translation;
    bool finished = false;
};

// (context, source text) to its translation, as a .ts file holds them.
using Catalogue = QMap<std::pair<QString, QString>, Message>;

Catalogue readCatalogue(const QString &path)
{
    Catalogue catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot open %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == "name"_L1) {
            context = xml.readElementText();
        } else if (name == "source"_L1) {
            source = xml.readElementText();
        } else if (name == "translation"_L1) {
            Message message;
            message.finished = xml.attributes().value("type"_L1).isEmpty();
            message.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            catalogue.insert({context, source}, message);
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return catalogue;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression marker(u"%L?\\d"_s);
    QStringList found;
    for (const auto &match : marker.globalMatch(text))
        found.append(match.captured().remove(u'L'));
    found.sort();
    found.removeDuplicates();
    return found;
}

} // namespace

// Every text of the program has a real translation in both languages; a
// text added to the code without one fails here, not in front of a user.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTemporaryDir scratch;
        const QString fresh = scratch.filePath(u"fresh.ts"_s);
        QProcess lupdate;
        lupdate.start(QStringLiteral(LUPDATE_PATH),
                      {u"-silent"_s, u"-locations"_s, u"none"_s, QStringLiteral("@" PENWICK_SOURCE_LIST),
                       u"-ts"_s, fresh});
        QVERIFY(lupdate.waitForFinished(60000));
        QVERIFY2(lupdate.exitCode() == 0, lupdate.readAllStandardError().constData());
        m_sources = readCatalogue(fresh);
        QVERIFY(m_sources.size() > 10);
    }

    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("English") << QStringLiteral(TRANSLATIONS_DIR "/penwick_en.ts");
        QTest::newRow("Japanese") << QStringLiteral(TRANSLATIONS_DIR "/penwick_ja.ts");
    }

    void everyTextIsTranslated()
    {
        QFETCH(QString, file);
        const Catalogue catalogue = readCatalogue(file);
        QStringList faults;
        for (auto it = m_sources.cbegin(); it != m_sources.cend(); ++it) {
            const auto &[context, source] = it.key();
            const QString where = context + u": \""_s + source + u'"';
            const auto found = catalogue.constFind(it.key());
            if (found == catalogue.cend()) {
                faults.append(where + u" is missing"_s);
            } else if (!found->finished || found->translation.isEmpty()) {
                faults.append(where + u" has no finished translation"_s);
            } else if (!placeholders(source).isEmpty()
                       && placeholders(found->translation) != placeholders(source)) {
                // A key that is no sentence ("BarGraph Label Format") may gain
                // placeholders; a sentence must keep its own.
                faults.append(where + u" and its translation use other placeholders"_s);
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

private:
    Catalogue m_sources;
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
