#include "windows/report/modReportStyle.h"

const char* modReportStyle::MasterSheet()
{
    return R"css(
html, body, div, p, h1, h2, dir, ul, dl, form { display: block; }
head, style, script, title, meta, link { display: none; }
body { margin: 0; font-size: 13px; }
table { display: table; border-spacing: 0; }
thead { display: table-header-group; }
tbody { display: table-row-group; }
tfoot { display: table-footer-group; }
tr { display: table-row; }
td, th { display: table-cell; padding: 1px 3px 1px 1px; vertical-align: middle; text-align: left; }
li { display: list-item; list-style-position: outside; }
b, strong, th { font-weight: bold; }
i, em { font-style: italic; }
h1 { font-weight: bold; margin: 4px 0 12px 0; }
h2 { font-weight: bold; margin: 18px 0 8px 0; }
a { cursor: pointer; }
br, img { display: inline-block; }

/* Lists indent by what the widths of the lines count on, so that lines of all levels end at the same place. */
dir, ul { margin-left: 40px; margin-top: 0; margin-bottom: 0; padding-left: 0; }

div > dir { margin-bottom: 14px; }

/* A long name takes a second line and the row grows with it. */
dir div, ul div { height: auto !important; min-height: 23px; }

/* The bar of a limit: its empty boxes keep their height, and small percentages their text. */
td div { display: block !important; height: 17px !important; min-height: 0; padding: 2px 0; overflow: visible !important; }
td div[style*="display:table"] { position: relative; z-index: 1; white-space: nowrap; }
)css";
}
