#pragma once

// Network paths of targets and exclusions. A path on a network drive is
// stored as the drive's network path, never as the local mount point, so
// that every program that meets the same share by another mount sees the
// same text.
//
// A network path is written as the mount source writes it: "//server/share"
// (SMB), "server:/export" (NFS), "user@host:/folder" (SSHFS); the backslash
// form "\\server\share" is one as well.

#include <string>

// Whether path is written in network form.
bool IsNetworkPathText(const std::string& path);

// The network path behind path when it lies on a network drive: a
// remembered connection (HKEY_CURRENT_USER\NetWork, then its Persistent key;
// the drive need not be mounted), else a mounted network file system. Empty
// text for any other path.
std::string RemoteNameOf(const std::string& path);

// Whether path is a network path: written in network form, or on a network
// drive, mounted or remembered.
bool IsNetworkPath(const std::string& path);

// path in network form: a network form as it is; a path on a network drive
// as the drive's network path with the rest of path behind it, without a
// final "/"; any other path unchanged.
std::string GetUncPath(const std::string& path);
