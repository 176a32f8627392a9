#pragma once

#include "storage/TypedStreamClass.h"

#include <QByteArrayView>

#include <span>
#include <variant>

struct TypedStreamObject;

// One decoded value and the type code it was written under. Whatever a value
// refers to (its bytes, classes, members or object) is held by the reader
// that made it, so values are plain data, copied and dropped for nothing.
struct TypedStreamValue
{
    using Members = std::span<const TypedStreamValue>;

    // 'c' 'C' 's' 'S' 'i' 'I' 'l' 'L' 'q' 'Q' 'f' 'd' '@' '#' '*' '+' '%'
    // ':', '[' for arrays, '{' for structs.
    char type = 0;
    // std::monostate                  nil ("@", "#", "*", "%", ":")
    // qint64                          integers and single chars; unsigned
    //                                 types as their unsigned value, "Q" as
    //                                 its bit pattern
    // double                          "f" and "d"
    // QByteArrayView                  "+" "*" "%" ":" texts, and the raw
    //                                 bytes of "[Nc]" and "[NC]"
    // TypedStreamClassChainView       "#"
    // const TypedStreamObject *       "@" (never null, nil is monostate)
    // Members                         "{...}" and other "[N...]"
    std::variant<std::monostate, qint64, double, QByteArrayView, TypedStreamClassChainView,
                 const TypedStreamObject *, Members>
        data;
};
