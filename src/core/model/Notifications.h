#pragma once

#include <QObject>

class DataList;
Q_DECLARE_OPAQUE_POINTER(DataList *)

// The program's change notifications, one signal each. Observers connect to
// the one hub and, where they care about a particular list, compare the
// signal's argument. Everything runs on the main thread.
class Notifications : public QObject
{
    Q_OBJECT

public:
    Notifications();
    static Notifications *instance();

signals:
    // "PWKDataListHasChanged": a month list or a closing-day list changed.
    void dataListHasChanged(DataList *list);
    // "PWKListPreferenceHasUpDated": the category or payway lists, or the
    // data folder, changed.
    void listPreferenceHasUpDated();
    // "PWKLastDateHasChanged": the closing-day settings changed.
    void lastDateHasChanged();
    // "PWKListWinChangedDate": the list window shows another month.
    void listWinChangedDate();
};
