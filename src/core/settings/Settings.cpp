#include "settings/Settings.h"

#include "settings/SettingsKeys.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSettings>
#include <QVariantList>

Settings::Settings()
    : m_settings(std::make_unique<QSettings>(QStringLiteral("Penwick"), QStringLiteral("Penwick")))
{
}

Settings::~Settings() = default;

void Settings::sync()
{
    m_settings->sync();
    QFile::setPermissions(m_settings->fileName(), QFile::ReadOwner | QFile::WriteOwner);
}

int Settings::version() const
{
    return m_settings->value(SettingsKeys::Version, 0).toInt();
}

void Settings::setVersion(int version)
{
    m_settings->setValue(SettingsKeys::Version, version);
}

QString Settings::dataPath() const
{
    return m_settings->value(SettingsKeys::DataPath).toString();
}

void Settings::setDataPath(const QString &path)
{
    m_settings->setValue(SettingsKeys::DataPath, path);
}

bool Settings::changeMonthLastDate() const
{
    return m_settings->value(SettingsKeys::ChangeMonthLastDate, false).toBool();
}

void Settings::setChangeMonthLastDate(bool on)
{
    m_settings->setValue(SettingsKeys::ChangeMonthLastDate, on);
}

int Settings::monthLastDate() const
{
    return m_settings->value(SettingsKeys::MonthLastDate, 0).toInt();
}

bool Settings::hasMonthLastDate() const
{
    return m_settings->contains(SettingsKeys::MonthLastDate);
}

void Settings::setMonthLastDate(int day)
{
    m_settings->setValue(SettingsKeys::MonthLastDate, day);
}

QString Settings::passwordHash() const
{
    return m_settings->value(SettingsKeys::PasswordHash).toString();
}

void Settings::setPasswordHash(const QString &hash)
{
    m_settings->setValue(SettingsKeys::PasswordHash, hash);
}

namespace {
QLatin1StringView startWindowKey(Settings::StartWindow window)
{
    switch (window) {
    case Settings::StartWindow::Input:
        return SettingsKeys::OpenInputWindow;
    case Settings::StartWindow::List:
        return SettingsKeys::OpenListWindow;
    case Settings::StartWindow::Graph:
        return SettingsKeys::OpenGraphWindow;
    case Settings::StartWindow::Balance:
        break;
    }
    return SettingsKeys::OpenBalanceWindow;
}
} // namespace

bool Settings::openWindow(StartWindow window) const
{
    return m_settings->value(startWindowKey(window), window == StartWindow::Input).toBool();
}

void Settings::setOpenWindow(StartWindow window, bool open)
{
    // Stored as the number of a check box's state, as the key always was.
    m_settings->setValue(startWindowKey(window), int(open));
}

int Settings::returnInputDefault() const
{
    return m_settings->value(SettingsKeys::ReturnInputDefault, 0).toInt();
}

void Settings::setReturnInputDefault(int which)
{
    m_settings->setValue(SettingsKeys::ReturnInputDefault, which);
}

QVariantList Settings::recentDescriptions() const
{
    return m_settings->value(SettingsKeys::RecentDescriptions).toList();
}

void Settings::setRecentDescriptions(const QVariantList &records)
{
    m_settings->setValue(SettingsKeys::RecentDescriptions, records);
}

QVariantList Settings::commonDescriptions() const
{
    return m_settings->value(SettingsKeys::CommonDescriptions).toList();
}

void Settings::setCommonDescriptions(const QVariantList &records)
{
    m_settings->setValue(SettingsKeys::CommonDescriptions, records);
}

QVariantMap Settings::commonDescriptionsDB() const
{
    return m_settings->value(SettingsKeys::CommonDescriptionsDB).toMap();
}

void Settings::setCommonDescriptionsDB(const QVariantMap &records)
{
    m_settings->setValue(SettingsKeys::CommonDescriptionsDB, records);
}

QList<int> Settings::columnMenuStates() const
{
    QList<int> states;
    const QVariantList values = m_settings->value(SettingsKeys::ColumnMenuStates).toList();
    states.reserve(values.size());
    for (const QVariant &value : values)
        states.append(value.toInt());
    return states;
}

void Settings::setColumnMenuStates(const QList<int> &states)
{
    QVariantList values;
    values.reserve(states.size());
    for (const int state : states)
        values.append(state);
    m_settings->setValue(SettingsKeys::ColumnMenuStates, values);
}

int Settings::chartSelection() const
{
    return m_settings->value(SettingsKeys::ChartSelection, 0).toInt();
}

void Settings::setChartSelection(int chart)
{
    m_settings->setValue(SettingsKeys::ChartSelection, chart);
}

Settings::Appearance Settings::appearance() const
{
    return appearanceFromName(m_settings->value(SettingsKeys::Appearance).toString())
        .value_or(Appearance::System);
}

void Settings::setAppearance(Appearance appearance)
{
    m_settings->setValue(SettingsKeys::Appearance, appearanceName(appearance));
}

std::optional<Settings::Appearance> Settings::appearanceFromName(QStringView name)
{
    for (const Appearance appearance : {Appearance::System, Appearance::Light, Appearance::Dark}) {
        if (name == appearanceName(appearance))
            return appearance;
    }
    return std::nullopt;
}

QString Settings::appearanceName(Appearance appearance)
{
    switch (appearance) {
    case Appearance::Light:
        return QStringLiteral("light");
    case Appearance::Dark:
        return QStringLiteral("dark");
    case Appearance::System:
        break;
    }
    return QStringLiteral("system");
}

int Settings::barChartNumberOfChart() const
{
    return m_settings->value(SettingsKeys::BarChartNumberOfChart, 0).toInt();
}

void Settings::setBarChartNumberOfChart(int count)
{
    m_settings->setValue(SettingsKeys::BarChartNumberOfChart, count);
}

bool Settings::lineChartShowsBudgets() const
{
    return m_settings->value(SettingsKeys::LineChartBudgets, false).toBool();
}

void Settings::setLineChartShowsBudgets(bool shown)
{
    m_settings->setValue(SettingsKeys::LineChartBudgets, shown);
}

QByteArray Settings::savedLayout(const QString &name) const
{
    return m_settings->value(name).toByteArray();
}

void Settings::setSavedLayout(const QString &name, const QByteArray &layout)
{
    m_settings->setValue(name, layout);
}

namespace {
std::optional<QVariant> valueIfPresent(const QSettings &settings, const QString &key)
{
    if (!settings.contains(key))
        return std::nullopt;
    return settings.value(key);
}
} // namespace

std::optional<bool> Settings::splitViewIsVertical(QStringView name) const
{
    const auto value = valueIfPresent(*m_settings, SettingsKeys::splitViewIsVertical(name));
    return value ? std::optional<bool>(value->toBool()) : std::nullopt;
}

std::optional<QString> Settings::splitViewVerticalPosition(QStringView name) const
{
    const auto value = valueIfPresent(*m_settings, SettingsKeys::splitViewVerticalPosition(name));
    return value ? std::optional<QString>(value->toString()) : std::nullopt;
}

std::optional<QString> Settings::splitViewHorizontalPosition(QStringView name) const
{
    const auto value = valueIfPresent(*m_settings, SettingsKeys::splitViewHorizontalPosition(name));
    return value ? std::optional<QString>(value->toString()) : std::nullopt;
}

void Settings::setSplitViewIsVertical(QStringView name, bool vertical)
{
    m_settings->setValue(SettingsKeys::splitViewIsVertical(name), vertical);
}

void Settings::setSplitViewVerticalPosition(QStringView name, const QString &layout)
{
    m_settings->setValue(SettingsKeys::splitViewVerticalPosition(name), layout);
}

void Settings::setSplitViewHorizontalPosition(QStringView name, const QString &layout)
{
    m_settings->setValue(SettingsKeys::splitViewHorizontalPosition(name), layout);
}

namespace {
// Header lines may hold anything, a slash too, so they are keyed by hash.
QString csvMappingKey(const QStringList &header)
{
    const QByteArray line = header.join(QChar(0x1F)).toUtf8();
    return SettingsKeys::CsvImportMappings + QLatin1Char('/')
        + QString::fromLatin1(QCryptographicHash::hash(line, QCryptographicHash::Sha1).toHex());
}
} // namespace

QVariantMap Settings::csvImportMapping(const QStringList &header) const
{
    return m_settings->value(csvMappingKey(header)).toMap();
}

void Settings::setCsvImportMapping(const QStringList &header, const QVariantMap &mapping)
{
    m_settings->setValue(csvMappingKey(header), mapping);
}

ImportChoices Settings::importChoices() const
{
    ImportChoices choices;
    for (const auto &[key, names] : {std::pair{SettingsKeys::ImportCategoryChoices, &choices.categories},
                                     std::pair{SettingsKeys::ImportPaywayChoices, &choices.payways}}) {
        const QVariantMap map = m_settings->value(key).toMap();
        for (auto choice = map.cbegin(); choice != map.cend(); ++choice)
            names->insert(choice.key(), choice.value().toString());
    }
    return choices;
}

void Settings::setImportChoices(const ImportChoices &choices)
{
    for (const auto &[key, names] : {std::pair{SettingsKeys::ImportCategoryChoices, &choices.categories},
                                     std::pair{SettingsKeys::ImportPaywayChoices, &choices.payways}}) {
        QVariantMap map;
        for (auto choice = names->cbegin(); choice != names->cend(); ++choice)
            map.insert(choice.key(), choice.value());
        m_settings->setValue(key, map);
    }
}
