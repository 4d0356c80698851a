#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>

#include <span>
#include <string_view>
#include <vector>

/// Page lists as people type them, "1-3, 5, 8-10": groups with commas between them, each one page or a span
/// of pages counted from 1, and in a new order with a turn behind it in degrees clockwise, "2:90". White
/// space is ignored. Spans that run backwards, pages named twice and whatever is no page of the document are
/// refused.
namespace tamble {

/// The page indexes of each group, counted from 0. Throws PDFError::invalidPageRange.
std::vector<std::vector<int>> pageGroups(std::string_view text, int pageCount);

/// The pages of all groups, with the turns that are allowed here. Throws PDFError::invalidPageRange.
std::vector<PageEdit> pageOrder(std::string_view text, int pageCount);

/// The pages that are left without those of all groups. Throws PDFError::invalidPageRange, and noPages when
/// none is left.
std::vector<PageEdit> pagesWithout(std::string_view text, int pageCount);

/// Throws PDFError: noPages for an empty list, invalidPageRange for a page that the document does not have or
/// a turn that is no multiple of 90.
void requireFitting(std::span<const PageEdit> pages, int pageCount);

/// How a split cuts a document of that many pages. Throws PDFError::invalidPageRange.
std::vector<std::vector<int>> splitGroups(const PDFSplitMode& mode, int pageCount);

}  // namespace tamble
