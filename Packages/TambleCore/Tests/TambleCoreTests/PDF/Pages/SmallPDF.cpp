#include "SmallPDF.h"

#include <fmt/format.h>

namespace tamble::test {

std::string pdfOf(const std::vector<std::string>& objects, const std::string& trailer) {
    std::string file = "%PDF-1.7\n";
    std::string table = fmt::format("xref\n0 {}\n0000000000 65535 f \n", objects.size() + 1);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        table += fmt::format("{:010} 00000 n \n", file.size());
        file += fmt::format("{} 0 obj\n{}\nendobj\n", i + 1, objects[i]);
    }
    const auto start = file.size();
    return file + table +
           fmt::format("trailer\n<< /Root 1 0 R /Size {} {} >>\nstartxref\n{}\n%%EOF\n", objects.size() + 1,
                       trailer, start);
}

std::string streamOf(const std::string& data, const std::string& entries) {
    return fmt::format("<< {} /Length {} >>\nstream\n{}\nendstream", entries, data.size(), data);
}

std::string pagesPDF(const std::vector<std::string>& pages, const std::string& content,
                     const std::vector<std::string>& further, const std::string& catalog) {
    std::string kids;
    for (std::size_t i = 0; i < pages.size(); ++i) kids += fmt::format("{} 0 R ", i + 4);
    std::vector<std::string> objects{
        "<< /Type /Catalog /Pages 2 0 R " + catalog + " >>",
        fmt::format(
            "<< /Type /Pages /Kids [{}] /Count {} /MediaBox [0 0 200 100] /Resources << /Font << /F << "
            "/Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> >>",
            kids, pages.size()),
        streamOf(content)};
    for (const auto& page : pages) {
        const bool hasContent = page.find("/Contents") != std::string::npos;
        objects.push_back(
            fmt::format("<< /Type /Page /Parent 2 0 R {} {} >>", page, hasContent ? "" : "/Contents 3 0 R"));
    }
    objects.insert(objects.end(), further.begin(), further.end());
    return pdfOf(objects, "/Info << /Title (A title) /CreationDate (D:20200102030405Z) >>");
}

}  // namespace tamble::test
