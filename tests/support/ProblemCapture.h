#pragma once

#include <string>
#include <vector>

#include "platform/ProblemReport.h"

// Collects what platform::ReportProblem reports while the object lives.
class ProblemCapture {
public:
    ProblemCapture();
    ~ProblemCapture();

    ProblemCapture(const ProblemCapture&) = delete;
    ProblemCapture& operator=(const ProblemCapture&) = delete;

    const std::vector<std::string>& Lines() const;

private:
    platform::ProblemSink previous_;
};
