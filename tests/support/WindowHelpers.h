#pragma once

#include <QApplication>
#include <QWidget>

// The program's windows as a user has them in front of him, for the tests of
// windows.

template <typename T>
QList<T *> visibleTopLevels()
{
    QList<T *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *typed = qobject_cast<T *>(widget); typed && typed->isVisible())
            found.append(typed);
    }
    return found;
}

// Closes every window and lets it go, so that the next case starts bare.
inline void closeTopLevels()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        widget->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
