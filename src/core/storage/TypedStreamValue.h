#pragma once

#include "storage/TypedStreamClass.h"

#include <QByteArray>

#include <variant>
#include <vector>

struct TypedStreamObject;

// One decoded value and the type code it was written under. Compound values
// (structs, arrays of anything but bytes) hold their members in order.
struct TypedStreamValue
{
    using Members = std::vector<TypedStreamValue>;

    // 'c' 'C' 's' 'S' 'i' 'I' 'l' 'L' 'q' 'Q' 'f' 'd' '@' '#' '*' '+' '%'
    // ':', '[' for arrays, '{' for structs.
    char type = 0;
    // std::monostate                  nil ("@", "#", "*", "%", ":")
    // qint64                          integers and single chars; unsigned
    //                                 types as their unsigned value, "Q" as
    //                                 its bit pattern
    // double                          "f" and "d"
    // QByteArray                      "+" "*" "%" ":" texts, and the raw
    //                                 bytes of "[Nc]" and "[NC]"
    // TypedStreamClassChain           "#"
    // const TypedStreamObject *       "@" (never null, nil is monostate)
    // Members                         "{...}" and other "[N...]"
    std::variant<std::monostate, qint64, double, QByteArray, TypedStreamClassChain,
                 const TypedStreamObject *, Members>
        data;
};
