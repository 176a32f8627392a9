#pragma once

#include <QtGlobal>

// The byte-level vocabulary that TypedStreamReader and TypedStreamWriter share.
namespace TypedStreamFormat {

// The Mac has written version 4 since its first release; version 3 objects
// carry an extra field after their class and are not read.
inline constexpr quint8 StreamerVersion = 4;
inline constexpr quint8 OldStreamerVersion = 3;

// The signature names the writer's byte order, which every multi-byte integer
// and real of the stream then follows.
inline constexpr char LittleEndianSignature[] = "streamtyped";
inline constexpr char BigEndianSignature[] = "typedstream";
inline constexpr qsizetype SignatureLength = 11;
inline constexpr qint64 SystemVersion = 1000;

// Head bytes that are not themselves a small integer. 0x80 and 0x88..0x91
// are reserved and never written.
enum Tag : quint8 {
    FirstReservedTag = 0x80,
    Int16Tag = 0x81,
    Int32Tag = 0x82,
    RealTag = 0x83,
    NewTag = 0x84,
    NilTag = 0x85,
    EndOfObjectTag = 0x86,
    Int64Tag = 0x87,
    LastReservedTag = 0x91,
};

// Integers in this range take a single byte.
inline constexpr qint64 SmallestByteInteger = -110;
inline constexpr qint64 LargestByteInteger = 127;
// The two-byte form leaves out -32768, so that its negation still fits.
inline constexpr qint64 SmallestInt16 = -32767;
inline constexpr qint64 LargestInt16 = 32767;

// Both tables (shared strings; objects, classes and C strings) are referenced
// by index - 110, so that the first 238 entries need a single byte.
inline constexpr qint64 LabelBias = 110;
constexpr qint64 labelForIndex(qint64 index) { return index - LabelBias; }
constexpr qint64 indexForLabel(qint64 label) { return label + LabelBias; }

} // namespace TypedStreamFormat
