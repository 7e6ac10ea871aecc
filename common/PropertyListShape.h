#pragma once

#include <QByteArray>

/// What is checked of a property list before it is read, because the library that reads it recurses as deep
/// as the list is nested, ends the program at a key with a NUL inside, takes what is cut off for whole, and
/// writes out shared objects once for each use.
namespace quindle {

/// True for a binary or well-formed XML document that is nested at most 512 deep and, written out, has at
/// most a million values. Says nothing about what stands in it.
bool hasPropertyListShape(const QByteArray& bytes);

} // namespace quindle
