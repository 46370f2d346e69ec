#pragma once

// An installation directory of its own for a benchmark (registration state,
// journal, store and registry), with the bindings loading from the build's library
// folder and the system monitor registered. Removed afterwards.

#include <string>

class BenchInstallation {
public:
    BenchInstallation();
    ~BenchInstallation();

    BenchInstallation(const BenchInstallation&) = delete;
    BenchInstallation& operator=(const BenchInstallation&) = delete;

    // False when the build's Q9SSCtrl could not be loaded.
    bool Ready() const { return m_ready; }

    // The installation's folder (store, journal, zone), without a '/' at
    // the end.
    const std::string& Directory() const { return m_directory; }

private:
    std::string m_directory;
    std::string m_savedModuleDir;
    bool m_ready = false;
};
