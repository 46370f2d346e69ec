#pragma once

// Merging a policy file into a store file: every value of the policy
// overwrites the target's, nothing is deleted. The store lists no section
// numbered 0, so CES_General can never be merged.

#include <cstddef>
#include <cstdint>
#include <string>

// The longest path of a merge's target file.
constexpr std::size_t kMaxPolicyPath = 260;

// The largest policy file merged: a store file of every section and key
// the product has is a few hundred KiB.
constexpr std::uintmax_t kMaxPolicyBytes = 16u << 20;

// Whether the file at path is larger than kMaxPolicyBytes.
bool PolicyTooLarge(const std::string& path);

// The base configuration that policies merge into when the caller names no
// file of its own.
constexpr const char* kPolicyBaseFile = "OrvIni.dat";

// The target of a merge: basePath when it is not empty, else the base
// configuration of the installation in installDirectory (ending in '/').
// Empty when the path is longer than kMaxPolicyPath.
std::string PolicyTargetPath(const char* basePath, const std::string& installDirectory);

// Copies every value of the policy file into the target file and writes the
// target. Answers the number of values copied, or -1, with nothing written,
// when either file cannot be opened or the policy is too large. A policy file that cannot be parsed
// holds no values; a target that cannot be parsed is reported and left as
// it is.
int MergePolicyFile(const std::string& targetPath, const std::string& policyPath);
