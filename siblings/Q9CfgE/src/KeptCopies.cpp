#include "KeptCopies.h"

namespace cfge {

const char* KeptCopies::Keep(uint64_t id, std::string_view bytes) {
    std::string& copy = m_copies[id];
    if (copy != bytes) copy.assign(bytes);
    return copy.c_str();
}

}  // namespace cfge
