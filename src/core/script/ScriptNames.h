#pragma once

#include <QLatin1StringView>

// The names under which the running program answers scripts on the session
// bus, shared by the service and its command-line client.
namespace ScriptNames {

inline constexpr QLatin1StringView Service{"org.penwick.Penwick"};
inline constexpr QLatin1StringView ApplicationPath{"/org/penwick/Penwick"};
// Month lists live below it, named by year * 100 + month.
inline constexpr QLatin1StringView DataListsPath{"/org/penwick/Penwick/DataLists/"};
inline constexpr QLatin1StringView ApplicationInterface{"org.penwick.Penwick.Application"};
inline constexpr QLatin1StringView DataListInterface{"org.penwick.Penwick.DataList"};

// The desktop's search reaches the program under a name of its own, which
// the bus may start the program for, while scripts find only a running one.
inline constexpr QLatin1StringView SearchService{"org.penwick.Penwick.Search"};
inline constexpr QLatin1StringView SearchProviderPath{"/org/penwick/Penwick/SearchProvider"};
inline constexpr QLatin1StringView RunnerPath{"/org/penwick/Penwick/Runner"};

// Errors: the program waits for its password; no such month; the month
// could not take a new entry; it could, but its file could not be written, so
// it did not; the month's file cannot be read; an argument is not one the
// method takes.
inline constexpr QLatin1StringView LockedError{"org.penwick.Penwick.Error.Locked"};
inline constexpr QLatin1StringView NoSuchListError{"org.penwick.Penwick.Error.NoSuchList"};
inline constexpr QLatin1StringView BookingFailedError{"org.penwick.Penwick.Error.BookingFailed"};
inline constexpr QLatin1StringView NotSavedError{"org.penwick.Penwick.Error.NotSaved"};
inline constexpr QLatin1StringView UnreadableError{"org.penwick.Penwick.Error.Unreadable"};
inline constexpr QLatin1StringView InvalidArgsError{"org.freedesktop.DBus.Error.InvalidArgs"};

} // namespace ScriptNames
