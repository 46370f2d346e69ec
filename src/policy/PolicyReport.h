#pragma once

// What a plan or a recorded apply says, for people (text) and for tools
// (JSON). Enciphered values appear only as set, changed or removed, never
// with their content.

#include <string>

#include "policy/PolicyPlan.h"
#include "policy/StoreSnapshot.h"

// "CES_SystemScan, CEK_ScanArchive: dword:00000003 -> dword:00000007"
std::string ValueChangeText(const ValueChange& change);

// The dry run's report: the merge, then each kind of change, then a last
// line saying whether anything would change.
std::string PlanText(const PolicyPlan& plan, const std::string& policyPath);

// The same as one JSON object.
std::string PlanJson(const PolicyPlan& plan, const std::string& policyPath);
