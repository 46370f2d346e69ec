#pragma once

// Small helpers over the configuration store that the whole system shares.
// Text the store hands out belongs to the store and may change with the next
// call, so every reader here copies it at once. Store results are not tested:
// the store is assumed to work.

#include <cstdint>
#include <string>
#include <vector>

// Words are changed bit by bit: base with the bits of mask taken from source.
constexpr uint32_t ReplaceBits(uint32_t base, uint32_t source, uint32_t mask) {
    return (base & ~mask) | (source & mask);
}

// word with the bits of mask set when on, cleared otherwise.
constexpr uint32_t SetBits(uint32_t word, uint32_t mask, bool on) {
    return on ? (word | mask) : (word & ~mask);
}

// word with the bits of mask replaced by those of the word stored at
// (section, key): how a save keeps the bits it does not own.
uint32_t TakeStoredBits(uint32_t section, uint32_t key, uint32_t mask, uint32_t word);

// A copy of a text from the store; null and empty both give empty text.
std::string StoreText(const char* text);

// The text at (section, key), or its factory default; empty when absent.
std::string ReadStoreText(uint32_t section, uint32_t key);
std::string ReadDefaultText(uint32_t section, uint32_t key);

// The deciphered text at (section, key), read in two calls: the length
// first, then the text into a buffer of that length. A length of 0 gives
// empty text without the second call.
std::string ReadEncText(uint32_t section, uint32_t key);

// One record of a section's object list.
struct ObjectRecord {
    uint8_t kind = 0;
    std::string text;

    bool operator==(const ObjectRecord&) const = default;
};

// The longest text a record can carry: its size field is 16 bits and counts
// the 4-byte header and the text's NUL.
constexpr std::size_t kMaxRecordText = 0xFFFF - 4 - 1;

// The bytes of one record: 16-bit little-endian size (header included), kind
// byte, the constant 1, the text and its NUL. The text ends at its first NUL
// and is cut to kMaxRecordText bytes.
std::string PackObjectRecord(uint8_t kind, const std::string& text);

// The records of a list buffer, walked by each record's size up to a size of
// 0. A size too small for the header ends the walk as well, since nothing
// after it can be found. Null gives no records.
std::vector<ObjectRecord> ParseObjectList(const void* buffer);

// The records of the section's object list; none when it has no list.
std::vector<ObjectRecord> ReadObjectList(uint32_t section);

// Rewrites the section's object list: one clear, then one record per call
// with indexes from 0. No records leave an empty list. The index is 16 bits,
// so records beyond the 65536th are not written.
void WriteObjectList(uint32_t section, const std::vector<ObjectRecord>& records);
// Writes the records at indexes from 0 without clearing the list first: for
// a schedule section, whose clearing removes the whole entry.
void WriteObjectRecords(uint32_t section, const std::vector<ObjectRecord>& records);
