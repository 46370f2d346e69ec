#pragma once

// Where a page's values come from when it shows them: the store (its
// working copy during a session) or the store's factory defaults. Load and
// Default run the same routine and differ only in this source; a page whose
// values partly live elsewhere (the function switches, which follow the
// registrations) answers those from a source of its own.

#include <cstdint>
#include <string>

// Every bit of a word: what a page owns of a word it writes whole.
constexpr uint32_t kWholeWord = 0xFFFFFFFF;

// A value's address in the store.
struct StoreAddress {
    uint32_t section = 0;
    uint32_t key = 0;

    auto operator<=>(const StoreAddress&) const = default;
};

class StoreValues {
public:
    virtual ~StoreValues() = default;
    virtual uint32_t Word(StoreAddress address) const;
    virtual std::string Text(StoreAddress address) const;
};

// Where a page keeps its values: it reads them as a source and takes their
// writes. By default the store (its working copy during a session); the tabs
// of the advanced scan dialog keep theirs in the dialog until its OK.
class ValueHome : public StoreValues {
public:
    virtual void Write(StoreAddress address, uint32_t word);
    virtual void WriteText(StoreAddress address, const std::string& text);
};

// The store's factory defaults.
class DefaultValues : public StoreValues {
public:
    uint32_t Word(StoreAddress address) const override;
    std::string Text(StoreAddress address) const override;
};

// Writes one value into the store.
void WriteWord(StoreAddress address, uint32_t word);
void WriteText(StoreAddress address, const std::string& text);
// Writes a secret: the store enciphers it before it keeps it.
void WriteEncText(StoreAddress address, const std::string& text);
