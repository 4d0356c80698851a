#pragma once

#include <TambleCore/PDF/Structure/Document.h>

#include <set>

namespace tamble::pdf {

/// Takes away everything by which a document says more than what its pages show and how one gets about in it:
/// forms, tags, layers, scripts, threads, what programs left for themselves. Title, dates, bookmarks, named
/// destinations, page labels, links, attachments and how it opens stay.
void keepOnlyNavigation(const Document& document);

/// Leaves only these keys in the dictionary.
void keepKeys(QPDFObjectHandle dictionary, const std::set<std::string>& kept);

}  // namespace tamble::pdf
