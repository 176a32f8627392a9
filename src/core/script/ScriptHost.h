#pragma once

#include "model/PaymentData.h"

class KController;

// What a script may ask of the running program beyond its data: whether it
// is open yet (not waiting for its password), its ledger, and its windows.
// The application implements it; the scripting service knows nothing else
// of the windows.
class ScriptHost
{
public:
    enum class Window { Input, List, Graph, Balance };

    virtual ~ScriptHost() = default;

    // False while the password is awaited: scripts get nothing then.
    virtual bool running() const = 0;
    virtual KController *ledger() const = 0;
    virtual void showWindow(Window window) = 0;
    // The list window at the entry's month, its search cleared, the entry
    // selected.
    virtual void showEntry(const PaymentDataPtr &record) = 0;
};
