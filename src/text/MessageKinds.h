#pragma once

// The fixed messages other programs of the product show through the library.

#include <cstdint>
#include <string>

struct FixedMessage {
    std::string caption;
    std::string text;
};

// Kind 0: "Warning", a new virus was detected (value is the text's format
// argument); 1: "Information", infected by viruses; 2: "Error", the self scan
// failed to start; 3: "Error", unable to execute. Any other kind: empty
// caption and text.
FixedMessage FixedMessageFor(int32_t kind, uint32_t value);
