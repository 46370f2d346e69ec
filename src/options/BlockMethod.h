#pragma once

// The blocking method of a monitoring profile (bits 28 to 30 of key 14 in
// sections 7, 8 and 12); all other bits of the word belong to others.

#include <cstdint>

enum class BlockMethod {
    DoNotBlock,
    ChangeExtension,  // "Change the extension to Q9F"
    Delete,
    Block,  // section 7 only
};

// The method of a word; the bits are tested in the order 29, 28, 30.
BlockMethod BlockMethodOf(uint32_t word);

// The word with the method's bit alone among the three; other bits kept.
uint32_t CollectBlockMethod(uint32_t word, BlockMethod method);
