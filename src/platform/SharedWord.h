#pragma once

// One 32-bit word that every process of the user sees under the same name,
// read and exchanged atomically: a POSIX shared memory object of four bytes
// mapped into each process. The object outlives the processes that use it
// (until Remove or a reboot); a new object starts as 0.
//
// When the shared object cannot be created or mapped (no /dev/shm, or one
// owned by another user), the word lives in this process only, still one
// word per name for all instances; this is reported once per name, and the
// program goes on with it.

#include <cstdint>
#include <string>

namespace platform {

// The word that tells whether a configuration window is open in some process
// (named after the library).
constexpr const char* kConfigWindowWordName = "/Q9CfgUL_";

class SharedWord {
public:
    // name is a shared memory name: a leading '/' and no other '/'.
    explicit SharedWord(std::string name);
    ~SharedWord();

    SharedWord(const SharedWord&) = delete;
    SharedWord& operator=(const SharedWord&) = delete;

    uint32_t Load() const;

    // Stores value and returns the value it replaced, in one atomic step.
    uint32_t Exchange(uint32_t value);

    // False when the word fell back to this process only.
    bool IsShared() const;

    const std::string& name() const;

    // Deletes the shared object name (mappings already made stay usable).
    // False when there was none or it could not be deleted.
    static bool Remove(const std::string& name);

private:
    bool MapShared();

    std::string m_name;
    uint32_t* m_word = nullptr;  // the mapped word, or the process's word of the name
    bool m_shared = false;
};

}  // namespace platform
