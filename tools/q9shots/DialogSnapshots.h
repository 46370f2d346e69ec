#pragma once

#include <QString>

// Renders the dialogs that edit what a scan covers, each filled as a user
// would see it, to <folder>/dialog<template>.png: "Set List to Scan" (1007)
// with a list of three targets and the machine's folders beside it, "Add
// folders" (1028) as it opens, "Add extensions" (1029) with a text typed
// in, and each tab of "Advanced Scan Setting" (1038) of the system scan and
// of the system monitoring, to <folder>/dialog1038-page<page>.png, both
// pages of the schedule wizard (dialog1009-page<n>.png), the authorization
// dialog (1024) and each step of the configuration wizard
// (dialog1002-step<n>.png). Prints
// each file name; returns the process's exit code. Runs inside a session, so
// that the session's language is used.
int SaveTargetDialogs(const QString& folder);
