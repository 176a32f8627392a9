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
    TypedStreamClassChain classChain;
    std::span<const TypedStreamValue> values;

    QByteArray className() const
    {
        return classChain.isEmpty() ? QByteArray() : classChain.constFirst().name;
    }

    // Whether the object's class is `name` or a subclass of it.
    bool inherits(QByteArrayView name) const
    {
        return std::any_of(classChain.cbegin(), classChain.cend(),
                           [name](const TypedStreamClass &c) { return c.name == name; });
    }
};
