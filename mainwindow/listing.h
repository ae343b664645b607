#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QString>

#include "platform/rich_text.h"

// A program on paper.
struct Listing {
  // Stands at the head of each page.
  QString title;
  // Bytes of the code page, as the editor holds them.
  FormattedText program;
  // Of characters whose format names none.
  QFont font;
};

// Draws the pages that the printer asks for, with numbered lines; a long line goes on below,
// indented. Colours too light for paper are darkened. False when the printer can't be written to.
bool PrintListing(const Listing& listing, QPagedPaintDevice& printer);
