#pragma once

// Records the calls this test program makes to the configuration store while
// an object lives; every call still goes on to the store itself. The store's
// entry points are defined once more in this program (StoreCallLog.cpp):
// the code under test binds to those definitions, which log the call and
// forward it to the library's own.
//
// A call is logged as text: "SetDWEx(4,10,0x100)", "SetStrEx(6,-1,null)",
// "GetEncStrEx(3,9,buffer)", "SetObjectList(6,0,kind 2,\"/home\")".
// Sections from 0x10000000 on are written in hex.

#include <string>
#include <vector>

class StoreCallLog {
public:
    StoreCallLog();
    ~StoreCallLog();

    StoreCallLog(const StoreCallLog&) = delete;
    StoreCallLog& operator=(const StoreCallLog&) = delete;

    // Every call, in order.
    const std::vector<std::string>& Calls() const { return m_calls; }
    // The calls that change the store, in order.
    std::vector<std::string> Writes() const;

    // Called by the entry points.
    static void Add(const std::string& call);

private:
    std::vector<std::string> m_calls;
};
