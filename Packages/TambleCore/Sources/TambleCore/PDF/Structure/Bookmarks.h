#pragma once

#include <TambleCore/PDF/Structure/Destinations.h>

namespace tamble::pdf {

/// One bookmark with those below it.
struct Bookmark {
    /// In UTF-8.
    std::string title;
    /// Where it leads inside the document: an array with the page first.
    std::optional<QPDFObjectHandle> place = {};
    /// The number of the page's object; 0 without a place.
    int pageNumber = 0;
    /// What else it does, as opening a web page.
    std::optional<QPDFObjectHandle> action = {};
    /// Its colour (/C) and style (/F), where it has them.
    std::optional<QPDFObjectHandle> colour = {};
    std::optional<QPDFObjectHandle> style = {};
    bool isOpen = true;
    std::vector<Bookmark> children = {};
};

/// The document's bookmarks; those in loops or nested deeper than any reader shows are left out.
std::vector<Bookmark> bookmarks(const Document& document, const Destinations& destinations);

/// Calls for the object of each bookmark.
void forEachBookmark(const Document& document, const std::function<void(QPDFObjectHandle)>& visit);

/// Replaces the document's bookmarks; all objects must be its own.
void setBookmarks(const Document& document, const std::vector<Bookmark>& bookmarks);

/// Without the bookmarks that lead nowhere any more, now that `isLeft` is false for some pages. One with
/// others below it that stay, stays without its place.
std::vector<Bookmark> bookmarksLeft(std::vector<Bookmark> bookmarks,
                                    const std::function<bool(QPDFObjectHandle page)>& isLeft);

}  // namespace tamble::pdf
