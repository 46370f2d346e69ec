#include "policy/PolicyMerge.h"

#include <filesystem>

#include "Q9CfgE.h"

namespace {

// A store file opened apart, closed (and written) when the object goes.
class OpenStoreFile {
public:
    explicit OpenStoreFile(const std::string& path)
        : m_handle(Q9CfgE_Create(Q9CFGE_STYLE_FILE, path.c_str(), 0)) {}
    ~OpenStoreFile() {
        if (m_handle) Q9CfgE_Close(m_handle);
    }
    OpenStoreFile(const OpenStoreFile&) = delete;
    OpenStoreFile& operator=(const OpenStoreFile&) = delete;

    Q9CfgEHandle handle() const { return m_handle; }

private:
    Q9CfgEHandle m_handle;
};

int CopySection(Q9CfgEHandle policy, Q9CfgEHandle target, uint32_t section) {
    int copied = 0;
    for (uint16_t j = 0;; ++j) {
        const uint32_t key = Q9CfgE_Enum(policy, section, j);
        if (key == 0) return copied;
        uint32_t type = 0;
        Q9CfgE_SetStr(target, section, key, Q9CfgE_GetStr(policy, section, key, &type));
        ++copied;
        if (j == UINT16_MAX) return copied;
    }
}

}  // namespace

std::string PolicyTargetPath(const char* basePath, const std::string& installDirectory) {
    const std::string path =
        (basePath && *basePath) ? std::string(basePath) : installDirectory + kPolicyBaseFile;
    return path.size() > kMaxPolicyPath ? std::string() : path;
}

bool PolicyTooLarge(const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return !error && size > kMaxPolicyBytes;
}

int MergePolicyFile(const std::string& targetPath, const std::string& policyPath) {
    if (targetPath.empty() || policyPath.empty() || PolicyTooLarge(policyPath)) return -1;
    const OpenStoreFile target(targetPath);
    if (!target.handle()) return -1;
    const OpenStoreFile policy(policyPath);
    if (!policy.handle()) return -1;
    int copied = 0;
    for (uint16_t i = 0;; ++i) {
        const uint32_t section = Q9CfgE_Enum(policy.handle(), 0, i);
        if (section == 0) break;
        copied += CopySection(policy.handle(), target.handle(), section);
        if (i == UINT16_MAX) break;
    }
    return copied;
}
