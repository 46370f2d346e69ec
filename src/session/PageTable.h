#pragma once

// The pages of one shell, by page id (0 to 40): made on first use, owned
// here, destroyed with the shell. The factory's table gives each id its
// class, its dialog template and its title string; an id whose class the
// program does not have is a page that cannot be made.

#include <QPointer>
#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "session/SettingsPage.h"


class QWidget;

// Makes the page object of an id (its window not yet created), or null.
using PageFactory = std::function<CSettingsPage*(int pageId)>;

class CPageTable {
public:
    static constexpr int kPageCount = 41;

    // The program's pages; tests pass a factory of their own.
    explicit CPageTable(PageFactory factory = ProgramPages());
    ~CPageTable();

    CPageTable(const CPageTable&) = delete;
    CPageTable& operator=(const CPageTable&) = delete;

    // The page of id, or null (also for an id outside 0 to 40).
    CSettingsPage* Find(int id) const;
    // Makes the page, sets its flags and creates its window under parent;
    // null when the object or its window cannot be made.
    CSettingsPage* Create(int id, uint32_t flags, QWidget* parent);
    // Creates the window again under parent, for a page that exists.
    CSettingsPage* Attach(int id, QWidget* parent);
    void Destroy(int id);
    // Destroys every page, from id 40 down to 0.
    void DestroyAll();

    // The program's factory.
    static PageFactory ProgramPages();
    // The template and the title of a page id; 0 for an id without one.
    static int TemplateOf(int id);
    static uint32_t TitleIdOf(int id);
    // The title's text; empty for an id without a title.
    static std::string TitleOf(int id);

private:
    PageFactory factory_;
    std::array<QPointer<CSettingsPage>, kPageCount> pages_{};
};
