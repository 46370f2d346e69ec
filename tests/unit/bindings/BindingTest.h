#pragma once

// Fixture of the binding tests: a sibling installation of its own per test,
// where a library may also be a probe without the siblings' entry points, or
// the handle probe, which records the objects it makes and frees.

#include <string>
#include <vector>

#include "support/SiblingTest.h"

class BindingTest : public SiblingTest {
protected:
    // Copies the probe library into the installation as lib<name>.so.
    void AddProbeAs(const std::string& name) const;
    // The file names of the probe copies unloaded so far, in order.
    std::vector<std::string> Unloads() const;

    // Copies the handle probe into the installation as lib<name>.so.
    void AddHandleProbeAs(const std::string& name) const;
    // The handle probe's record so far ("Q9P3ATHL_Create 1", ...).
    std::vector<std::string> Handles() const;
};
