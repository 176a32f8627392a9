#pragma once

#include <QByteArray>
#include <QList>

#include <span>

// A class as an archive records it: the name its instances are archived under
// and the version it had when they were written.
struct TypedStreamClass
{
    QByteArray name;
    int version = 0;

    friend bool operator==(const TypedStreamClass &, const TypedStreamClass &) = default;
};

// An object's class first, then each superclass up to the root class, for
// example {{"PaymentData", 2}, {"NSObject", 0}}.
using TypedStreamClassChain = QList<TypedStreamClass>;
// A chain as a reader hands it out, held by that reader.
using TypedStreamClassChainView = std::span<const TypedStreamClass>;
