#include "StoreCallLog.h"

#include <Q9CfgE.h>
#include <dlfcn.h>

#include <cstdio>

namespace {

// The calls of the log that lives now; null while none does.
std::vector<std::string>* g_calls = nullptr;

// The library's own definition of an entry point.
template <typename Fn>
Fn* Next(const char* name) {
    return reinterpret_cast<Fn*>(dlsym(RTLD_NEXT, name));
}

std::string Number(uint32_t value) {
    if (value == 0xFFFFFFFFu) return "-1";
    char text[16];
    std::snprintf(text, sizeof text, value >= 0x10000000u ? "0x%x" : "%u", value);
    return text;
}

std::string Hex(uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", value);
    return text;
}

std::string Quoted(const char* text) { return text ? "\"" + std::string(text) + "\"" : "null"; }

std::string Address(uint32_t section, uint32_t key) { return Number(section) + "," + Number(key); }

bool IsWrite(const std::string& call) { return call.rfind("Set", 0) == 0; }

}  // namespace

StoreCallLog::StoreCallLog() { g_calls = &m_calls; }

StoreCallLog::~StoreCallLog() { g_calls = nullptr; }

std::vector<std::string> StoreCallLog::Writes() const {
    std::vector<std::string> writes;
    for (const std::string& call : m_calls) {
        if (IsWrite(call)) writes.push_back(call);
    }
    return writes;
}

void StoreCallLog::Add(const std::string& call) {
    if (g_calls) g_calls->push_back(call);
}

extern "C" {

uint32_t Q9CfgE_GetDWEx(uint32_t section, uint32_t key) {
    static auto* next = Next<decltype(Q9CfgE_GetDWEx)>("Q9CfgE_GetDWEx");
    StoreCallLog::Add("GetDWEx(" + Address(section, key) + ")");
    return next(section, key);
}

int32_t Q9CfgE_SetDWEx(uint32_t section, uint32_t key, uint32_t value) {
    static auto* next = Next<decltype(Q9CfgE_SetDWEx)>("Q9CfgE_SetDWEx");
    StoreCallLog::Add("SetDWEx(" + Address(section, key) + "," + Hex(value) + ")");
    return next(section, key, value);
}

const char* Q9CfgE_GetStrEx(uint32_t section, uint32_t key) {
    static auto* next = Next<decltype(Q9CfgE_GetStrEx)>("Q9CfgE_GetStrEx");
    StoreCallLog::Add("GetStrEx(" + Address(section, key) + ")");
    return next(section, key);
}

int32_t Q9CfgE_SetStrEx(uint32_t section, uint32_t key, const char* text) {
    static auto* next = Next<decltype(Q9CfgE_SetStrEx)>("Q9CfgE_SetStrEx");
    StoreCallLog::Add("SetStrEx(" + Address(section, key) + "," + Quoted(text) + ")");
    return next(section, key, text);
}

int32_t Q9CfgE_GetEncStrEx(uint32_t section, uint32_t key, char* buffer, uint32_t* length) {
    static auto* next = Next<decltype(Q9CfgE_GetEncStrEx)>("Q9CfgE_GetEncStrEx");
    StoreCallLog::Add("GetEncStrEx(" + Address(section, key) + "," + (buffer ? "buffer" : "null") +
                      ")");
    return next(section, key, buffer, length);
}

uint32_t Q9CfgE_GetDefaultDW(uint32_t section, uint32_t key) {
    static auto* next = Next<decltype(Q9CfgE_GetDefaultDW)>("Q9CfgE_GetDefaultDW");
    StoreCallLog::Add("GetDefaultDW(" + Address(section, key) + ")");
    return next(section, key);
}

const char* Q9CfgE_GetDefaultStr(uint32_t section, uint32_t key) {
    static auto* next = Next<decltype(Q9CfgE_GetDefaultStr)>("Q9CfgE_GetDefaultStr");
    StoreCallLog::Add("GetDefaultStr(" + Address(section, key) + ")");
    return next(section, key);
}

const void* Q9CfgE_GetObjectList(uint32_t section, uint32_t reserved) {
    static auto* next = Next<decltype(Q9CfgE_GetObjectList)>("Q9CfgE_GetObjectList");
    StoreCallLog::Add("GetObjectList(" + Number(section) + "," + Number(reserved) + ")");
    return next(section, reserved);
}

int32_t Q9CfgE_SetObjectList(uint32_t section, uint16_t index, const void* record) {
    static auto* next = Next<decltype(Q9CfgE_SetObjectList)>("Q9CfgE_SetObjectList");
    const auto* bytes = static_cast<const unsigned char*>(record);
    StoreCallLog::Add("SetObjectList(" + Number(section) + "," + Number(index) + ",kind " +
                      std::to_string(bytes[2]) + "," +
                      Quoted(reinterpret_cast<const char*>(bytes + 4)) + ")");
    return next(section, index, record);
}

}  // extern "C"
