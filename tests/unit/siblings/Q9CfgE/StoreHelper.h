#pragma once

#include "support/ChildProcess.h"
#include "support/TestPaths.h"

namespace store_test {

// The store test helper program (q9_store_helper) running as another process.
class StoreHelper : public ChildProcess {
public:
    explicit StoreHelper(std::vector<std::string> arguments)
        : ChildProcess(TestPath("helpers") + "/q9_store_helper", std::move(arguments)) {}
};

}  // namespace store_test
