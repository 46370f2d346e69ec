#include "platform/SharedWord.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>

#include "platform/ProblemReport.h"

namespace platform {
namespace {

// Atomics shared between processes must not rely on a lock in one process.
static_assert(std::atomic_ref<uint32_t>::is_always_lock_free);

// The words of names that could not be shared: one per name for the whole
// process. Never freed, so that they stay valid for static instances
// whichever order those are destroyed in at exit.
uint32_t* ProcessWord(const std::string& name, bool* created) {
    static std::mutex mutex;
    static auto* words = new std::map<std::string, uint32_t>();
    const std::lock_guard lock(mutex);
    const auto [word, inserted] = words->try_emplace(name, 0);
    *created = inserted;
    return &word->second;
}

}  // namespace

SharedWord::SharedWord(std::string name) : m_name(std::move(name)) {
    m_shared = MapShared();
    if (m_shared) return;
    const int error = errno;
    bool created = false;
    m_word = ProcessWord(m_name, &created);
    if (created) {
        ReportProblem("shared word " + m_name + " is not available (" + std::strerror(error) +
                      "); it is kept in this process only");
    }
}

SharedWord::~SharedWord() {
    if (m_shared) munmap(m_word, sizeof(uint32_t));
}

bool SharedWord::MapShared() {
    const int fd = shm_open(m_name.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    // Every process grows a new object to four bytes; growing an object that
    // already has them is skipped, so a word another process set stays intact.
    struct stat status {};
    bool sized = fstat(fd, &status) == 0;
    if (sized && status.st_size < static_cast<off_t>(sizeof(uint32_t))) {
        sized = ftruncate(fd, sizeof(uint32_t)) == 0;
    }
    void* mapping = MAP_FAILED;
    if (sized) {
        mapping = mmap(nullptr, sizeof(uint32_t), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    }
    const int error = errno;
    close(fd);
    errno = error;
    if (mapping == MAP_FAILED) return false;
    m_word = static_cast<uint32_t*>(mapping);
    return true;
}

uint32_t SharedWord::Load() const { return std::atomic_ref<uint32_t>(*m_word).load(); }

uint32_t SharedWord::Exchange(uint32_t value) {
    return std::atomic_ref<uint32_t>(*m_word).exchange(value);
}

bool SharedWord::IsShared() const { return m_shared; }

const std::string& SharedWord::name() const { return m_name; }

bool SharedWord::Remove(const std::string& name) { return shm_unlink(name.c_str()) == 0; }

}  // namespace platform
