#pragma once

#include "support/ChildProcess.h"
#include "support/TestPaths.h"

// The registry test helper program (q9_registry_helper) running as another
// process.
class HelperProcess : public ChildProcess {
public:
    explicit HelperProcess(std::vector<std::string> arguments, Output output = Output::kInherited)
        : ChildProcess(TestPath("helpers") + "/q9_registry_helper", std::move(arguments), output) {}
};
