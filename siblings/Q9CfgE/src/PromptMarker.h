#pragma once

// Tells every process of the installation which password prompt is open.
// The prompting process writes the prompt's native window id into
// "Q9CfgE.prompt" beside the store and holds an flock() on that file while
// the prompt is open. Readers answer the id only while somebody holds the
// lock, so a prompt whose process died leaves no stale answer: the system
// drops the lock with the process.

#include <cstdint>
#include <string>

namespace cfge {

class PromptMarker {
public:
    static constexpr const char* kFileName = "Q9CfgE.prompt";

    // Marks the prompt with window id as open while the object lives. When
    // another process's prompt holds the mark, this one stays unmarked.
    PromptMarker(const std::string& path, uint64_t window);
    ~PromptMarker();

    PromptMarker(const PromptMarker&) = delete;
    PromptMarker& operator=(const PromptMarker&) = delete;

    // The window id of the prompt open now, in this or another process; 0
    // when none is.
    static uint64_t OpenPrompt(const std::string& path);

private:
    int m_fd = -1;
};

}  // namespace cfge
