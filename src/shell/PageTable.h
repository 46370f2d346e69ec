#pragma once

// The pages of one shell, by page id (0 to 40): made on first use, owned
// here, destroyed with the shell. The page registry gives each id its class,
// its dialog template and its title string; an id whose class the program
// does not have is a page that cannot be made.

#include <QPointer>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "pages/SettingsPage.h"
#include "session/PageId.h"

class QWidget;

// Makes the page object of an id (its window not yet created), or null.
using PageFactory = std::function<std::unique_ptr<CSettingsPage>(int pageId)>;

class CPageTable {
public:
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

    // The program's pages, by the page registry.
    static PageFactory ProgramPages();
    // The template and the title of a page id; 0 for an id without one.
    static int TemplateOf(int id);
    static uint32_t TitleIdOf(int id);
    // The title's text; empty for an id without a title.
    static std::string TitleOf(int id);

private:
    PageFactory m_factory;
    std::array<QPointer<CSettingsPage>, kPageCount> m_pages{};
};
