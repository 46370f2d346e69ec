#pragma once

// The one table of the settings pages: a row per page id, in id order, with
// the page's dialog template, its title string and the function that makes
// it. Adding a page is adding its row. A page that is not built yet has a
// row without a maker: the shells then show nothing for it.

#include <array>
#include <cstdint>
#include <memory>

#include "session/PageId.h"

class CSettingsPage;

using PageMaker = std::unique_ptr<CSettingsPage> (*)();

struct PageRow {
    PageId id;
    int templateId;
    uint32_t titleId;  // 0: no title
    PageMaker make;    // null: not built
};

const std::array<PageRow, kPageCount>& PageRows();

// The row of a page id.
const PageRow& PageRowOf(PageId id);

// The template of a page: the schedule scan page has a second template on NT
// hosts.
int PageTemplate(PageId id, bool isNT);
