#pragma once

#include <string>
#include <vector>

namespace tamble::test {

/// A PDF of these objects, numbered from 1; the first is its catalog.
std::string pdfOf(const std::vector<std::string>& objects, const std::string& trailer = {});
/// A stream object with further entries of its dictionary.
std::string streamOf(const std::string& data, const std::string& entries = {});

/// A document of pages with these entries, the numbers of further objects starting at `firstFurther` for so
/// many pages. Each page has the content, unless its entries name another.
std::string pagesPDF(const std::vector<std::string>& pages, const std::string& content,
                     const std::vector<std::string>& further = {}, const std::string& catalog = {});
inline int firstFurther(std::size_t pages) {
    return static_cast<int>(pages) + 4;
}

}  // namespace tamble::test
