#pragma once

// The run-as account of a scheduled scan, as the scheduler service reads it
// from the "AI" value of the job's key: the user name and the password, each
// scrambled on its own, laid out end to end, little-endian, no padding:
//
//   4 bytes   user name length + 1
//   n bytes   the scrambled user name, then one plain zero byte
//   4 bytes   password length + 1
//   m bytes   the scrambled password, then one plain zero byte
//
// so the value is 10 bytes longer than the two texts together. Scrambling
// keeps the password out of plain sight in the hive file; it is no cipher.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

// The register every text starts from (docs/schedule.md).
constexpr uint16_t kAccountSeed = 0x5C3A;

// Scrambles text: each byte is XOR-ed with the register's high byte, and the
// register steps on with the scrambled byte.
std::string ScrambleAccountText(const std::string& text);
// The reverse: the register steps on with the byte as read.
std::string UnscrambleAccountText(const std::string& scrambled);

// The bytes of the "AI" value for user and password. A text ends at its
// first NUL.
std::string EncodeAccountValue(const std::string& user, const std::string& password);

struct AccountValue {
    std::string user;
    std::string password;

    bool operator==(const AccountValue&) const = default;
};

// Reads size bytes of an "AI" value. Nothing past size is read: a length word
// that does not fit, a text that runs past the end or lacks its zero byte,
// or bytes left over give no value.
std::optional<AccountValue> ParseAccountValue(const void* data, std::size_t size);
