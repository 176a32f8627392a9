#include "model/Notifications.h"

Q_GLOBAL_STATIC(Notifications, s_notifications)

Notifications::Notifications()
{
    // Lets queued connections and signal spies carry the list.
    qRegisterMetaType<DataList *>();
}

Notifications *Notifications::instance()
{
    return s_notifications();
}
