#pragma once

#include <QLatin1StringView>
#include <QString>

// The one home of every per-user settings key. The names are part of the
// stored settings and must never change.
namespace SettingsKeys {

// Application: first-start marker and data folder.
inline constexpr QLatin1StringView Version{"Version"};
inline constexpr QLatin1StringView DataPath{"DataPath"};

// Windows to open at start: input, list, graph, balance.
inline constexpr QLatin1StringView OpenInputWindow{"OpenWindow_0"};
inline constexpr QLatin1StringView OpenListWindow{"OpenWindow_1"};
inline constexpr QLatin1StringView OpenGraphWindow{"OpenWindow_2"};
inline constexpr QLatin1StringView OpenBalanceWindow{"OpenWindow_3"};

// Month closing day.
inline constexpr QLatin1StringView ChangeMonthLastDate{"changeMonthLastDate"};
inline constexpr QLatin1StringView MonthLastDate{"monthLastDate"};

// Input window and its description memory.
inline constexpr QLatin1StringView ReturnInputDefault{"returnInputDefault"};
inline constexpr QLatin1StringView RecentDescriptions{"recentDescriptions"};
inline constexpr QLatin1StringView CommonDescriptions{"commonDescriptions"};
inline constexpr QLatin1StringView CommonDescriptionsDB{"commonDescriptionsDB"};

// List window: visible columns, the table's column layout, the split view.
inline constexpr QLatin1StringView ColumnMenuStates{"ColumnMenuStates"};
inline constexpr QLatin1StringView DataListTable{"DataListTable"};
inline constexpr QLatin1StringView ListWindowSplitView{"ListWindowSplitView"};

// Charts.
inline constexpr QLatin1StringView ChartSelection{"PWK_Chart_Selection"};
inline constexpr QLatin1StringView BarChartNumberOfChart{"PWK_BarChart_NumberOfChart"};
inline constexpr QLatin1StringView LineChartBudgets{"PWK_LineChart_Budgets"};

// How the windows look: "system", "light" or "dark".
inline constexpr QLatin1StringView Appearance{"Appearance"};

// The password hash.
inline constexpr QLatin1StringView PasswordHash{"se-XCMD"};

// Window frames, saved under each window's own name.
inline constexpr QLatin1StringView InputWindow{"InputWindow"};
inline constexpr QLatin1StringView ListWindow{"ListWindow"};
inline constexpr QLatin1StringView GraphWindow{"GraphWindow"};
inline constexpr QLatin1StringView BalanceWindow{"BalanceWindow"};
inline constexpr QLatin1StringView PreferenceWindow{"PreferenceWindow"};
inline constexpr QLatin1StringView ScheduleWindow{"ScheduleWindow"};
inline constexpr QLatin1StringView SetPassPanel{"SetPassPanel"};
inline constexpr QLatin1StringView ConfirmPassPanel{"ConfirmPassPanel"};

// A split view keeps three keys under its own name: the layout of each
// orientation and the orientation it was saved in.
inline QString splitViewVerticalPosition(QStringView name)
{
    return name.toString() + QLatin1StringView("_VerticalPosition");
}
inline QString splitViewHorizontalPosition(QStringView name)
{
    return name.toString() + QLatin1StringView("_HorizontalPosition");
}
inline QString splitViewIsVertical(QStringView name)
{
    return name.toString() + QLatin1StringView("_IsVertical");
}

// The CSV import mappings, one key per header line (its hash) in this group.
inline constexpr QLatin1StringView CsvImportMappings{"CsvImportMappings"};
// Where unmatched categories and payment modes of imports went, by name.
inline constexpr QLatin1StringView ImportCategoryChoices{"ImportChoices/Categories"};
inline constexpr QLatin1StringView ImportPaywayChoices{"ImportChoices/Payways"};

} // namespace SettingsKeys
