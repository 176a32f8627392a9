#pragma once

#include "storage/TypedStreamClass.h"
#include "storage/TypedStreamValue.h"

#include <QByteArrayView>

#include <algorithm>
#include <span>

// An archived object: its class chain and the values its encoder wrote, the
// values of all its groups in one sequence (held by the reader that made it).
struct TypedStreamObject
{
    TypedStreamClassChainView classChain;
    std::span<const TypedStreamValue> values;

    const QByteArray &className() const
    {
        static const QByteArray none;
        return classChain.empty() ? none : classChain.front().name;
    }

    // Whether the object's class is `name` or a subclass of it.
    bool inherits(QByteArrayView name) const
    {
        return std::any_of(classChain.begin(), classChain.end(),
                           [name](const TypedStreamClass &c) { return c.name == name; });
    }
};
