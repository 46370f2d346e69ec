#pragma once

// The four ways the tests damage a data file: cut short, replaced by a
// picture's bytes, emptied, and grown past the size any reader takes in.

#include <cstddef>
#include <string>

enum class Damage { kCutShort, kBinary, kEmpty, kTooLarge };

constexpr Damage kEveryDamage[] = {Damage::kCutShort, Damage::kBinary, Damage::kEmpty,
                                   Damage::kTooLarge};

const char* NameOf(Damage damage);

// Where cutting text leaves a line its reader cannot take: halfway into the
// first occurrence of marker (a quoted text, a header).
std::size_t CutInside(const std::string& text, const std::string& marker);

// valid damaged: cut at cutAt; the first bytes of a PNG picture and every
// byte value; nothing; or valid followed by blank lines past the limit.
std::string Damaged(const std::string& valid, std::size_t cutAt, Damage damage);

// Whether the file at path is in the process's list of unreadable files
// (paths compared in their canonical form).
bool IsListedUnreadable(const std::string& path);
