#include "TinyPDF.h"

#include <TambleCore/Jobs/SkipReason.h>
#include <TambleCore/Support/UUID.h>

#include <set>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFNameTreeObjectHelper.hh>
#include <qpdf/QPDFPageLabelDocumentHelper.hh>

namespace tamble::pdf {

TinyPDF::TinyPDF(int pageCount) {
    qpdf_->emptyPDF();
    for (int number = 1; number <= pageCount; ++number) {
        auto content = stream("", fmt::format("BT /F1 12 Tf 20 150 Td (Text of page {}) Tj ET", number));
        qpdf_->addPage(object(fmt::format("<< /Type /Page /MediaBox [0 0 200 300] /Contents {} /Resources << "
                                          "/Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica "
                                          ">> >> >> >>",
                                          ref(content))),
                       false);
    }
}

QPDFObjectHandle TinyPDF::object(const std::string& text) {
    return qpdf_->makeIndirectObject(QPDFObjectHandle::parse(qpdf_.get(), text));
}

QPDFObjectHandle TinyPDF::stream(const std::string& dictionary, const std::string& data) {
    auto made = qpdf_->newStream(data);
    auto keys = QPDFObjectHandle::parse(qpdf_.get(), "<< " + dictionary + " >>");
    for (const auto& [key, value] : keys.getDictAsMap()) made.getDict().replaceKey(key, value);
    return made;
}

void TinyPDF::setRoot(const std::string& key, const std::string& text) {
    root().replaceKey(key, QPDFObjectHandle::parse(qpdf_.get(), text));
}

void TinyPDF::setBookmarks(const std::vector<std::pair<std::string, std::string>>& bookmarks) {
    auto outlines = object(fmt::format("<< /Type /Outlines /Count {} >>", bookmarks.size()));
    std::optional<QPDFObjectHandle> before;
    for (const auto& [title, place] : bookmarks) {
        auto item = object(fmt::format("<< /Title ({}) /Parent {} /Dest {} >>", title, ref(outlines), place));
        if (before) {
            item.replaceKey("/Prev", *before);
            before->replaceKey("/Next", item);
        } else {
            outlines.replaceKey("/First", item);
        }
        outlines.replaceKey("/Last", item);
        before = item;
    }
    root().replaceKey("/Outlines", outlines);
}

QPDFObjectHandle TinyPDF::annotate(int number, const std::string& keys) {
    auto made = object(fmt::format("<< /Type /Annot /Rect [10 10 60 30] /P {} {} >>", pageRef(number), keys));
    auto holder = page(number);
    if (!holder.hasKey("/Annots")) holder.replaceKey("/Annots", QPDFObjectHandle::newArray());
    holder.getKey("/Annots").appendItem(made);
    return made;
}

QPDFObjectHandle TinyPDF::link(int number, const std::string& destination) {
    return annotate(number, "/Subtype /Link /Dest " + destination);
}

QPDFObjectHandle TinyPDF::field(const std::string& name, const std::string& value,
                                const std::vector<int>& onPages) {
    auto field = object(fmt::format("<< /FT /Tx /T ({}) /V ({}) /Kids [] >>", name, value));
    for (const int number : onPages) {
        auto look = stream("/Type /XObject /Subtype /Form /BBox [0 0 50 20]", "BT (" + value + ") Tj ET");
        field.getKey("/Kids").appendItem(annotate(
            number, fmt::format("/Subtype /Widget /Parent {} /AP << /N {} >>", ref(field), ref(look))));
    }
    if (!root().hasKey("/AcroForm")) setRoot("/AcroForm", "<< /Fields [] /DA (/Helv 0 Tf) >>");
    root().getKey("/AcroForm").getKey("/Fields").appendItem(field);
    return field;
}

void TinyPDF::tag(const std::string& text) {
    auto tree = object("<< /Type /StructTreeRoot /K [] >>");
    std::string numbers;
    const auto pageCount = static_cast<int>(qpdf_->getAllPages().size());
    for (int number = 1; number <= pageCount; ++number) {
        auto paragraph =
            object(fmt::format("<< /Type /StructElem /S /P /P {} /Pg {} /K 0 /ActualText ({} {}) >>",
                               ref(tree), pageRef(number), text, number));
        tree.getKey("/K").appendItem(paragraph);
        page(number).replaceKey("/StructParents", QPDFObjectHandle::newInteger(number - 1));
        numbers += fmt::format("{} [{}] ", number - 1, ref(paragraph));
    }
    tree.replaceKey("/ParentTree", object("<< /Nums [" + numbers + "] >>"));
    root().replaceKey("/StructTreeRoot", tree);
    setRoot("/MarkInfo", "<< /Marked true >>");
}

void TinyPDF::attach(const std::string& name, const std::string& content) {
    QPDFEmbeddedFileDocumentHelper(*qpdf_).replaceEmbeddedFile(
        name, QPDFFileSpecObjectHelper::createFileSpec(
                  *qpdf_, name, QPDFEFStreamObjectHelper::createEFStream(*qpdf_, content)));
}

std::filesystem::path TinyPDF::save(const TestFolder& folder, const std::string& name,
                                    const std::function<void(QPDFWriter&)>& setup) {
    std::filesystem::path file = folder.files() / name;
    QPDFWriter writer(*qpdf_, file.c_str());
    writer.setStreamDataMode(qpdf_s_preserve);
    if (setup) setup(writer);
    writer.write();
    return file;
}

std::filesystem::path TinyPDF::saveLocked(const TestFolder& folder, const std::string& name,
                                          const std::string& user, const std::string& owner) {
    return save(folder, name, [&](QPDFWriter& writer) {
        writer.setR6EncryptionParameters(user.c_str(), owner.c_str(), true, true, true, true, true, true,
                                         qpdf_r3p_none, true);
    });
}

ReadPDF::ReadPDF(const std::filesystem::path& file, const std::string& password) {
    // A warning is a failure here: what is written must not need repair.
    qpdf_->setSuppressWarnings(true);
    qpdf_->processFile(file.c_str(), password.c_str());
    qpdf_->getAllPages();
    for (const auto& warning : qpdf_->getWarnings()) ADD_FAILURE() << warning.what();
}

std::string ReadPDF::order() {
    std::string order;
    for (auto page : pages()) {
        const auto contents = page.getPageContents();
        std::string data;
        for (auto content : contents) {
            const auto buffer = content.getStreamData(qpdf_dl_all);
            data.append(reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize());
        }
        constexpr std::string_view words = "Text of page ";
        const auto found = data.find(words);
        const std::string number = found == std::string::npos ? "?" : data.substr(found + words.size());
        if (!order.empty()) order += ',';
        order += number.substr(0, number.find_first_not_of("?0123456789"));
    }
    return order;
}

std::string ReadPDF::shownAt(QPDFObjectHandle destination) {
    if (destination.isName()) destination = root().getKey("/Dests").getKey(destination.getName());
    if (destination.isString()) {
        auto names = root().getKey("/Names");
        if (!names.isDictionary() || !names.hasKey("/Dests")) return "";
        // Readers look for the same bytes, not for the same text.
        const std::string wanted = destination.getStringValue();
        std::vector<QPDFObjectHandle> nodes{names.getKey("/Dests")};
        destination = QPDFObjectHandle::newNull();
        while (!nodes.empty()) {
            auto node = nodes.back();
            nodes.pop_back();
            if (auto kids = node.getKey("/Kids"); kids.isArray()) {
                for (const auto& kid : kids.getArrayAsVector()) nodes.push_back(kid);
            }
            auto entries = node.getKey("/Names");
            for (int i = 0; entries.isArray() && i + 1 < entries.getArrayNItems(); i += 2) {
                if (entries.getArrayItem(i).getStringValue() == wanted)
                    destination = entries.getArrayItem(i + 1);
            }
        }
    }
    if (destination.isDictionary()) destination = destination.getKey("/D");
    if (!destination.isArray() || destination.getArrayNItems() == 0) return "";
    const auto shown = order();
    int index = 0;
    for (std::size_t start = 0; start <= shown.size(); ++index) {
        const auto end = std::min(shown.find(',', start), shown.size());
        if (pages().at(static_cast<std::size_t>(index)).getObjGen() ==
            destination.getArrayItem(0).getObjGen())
            return shown.substr(start, end - start);
        start = end + 1;
    }
    return "";
}

std::string ReadPDF::shownByLink(QPDFObjectHandle link) {
    if (link.hasKey("/Dest")) return shownAt(link.getKey("/Dest"));
    auto action = link.getKey("/A");
    return action.isDictionary() ? shownAt(action.getKey("/D")) : "";
}

std::string ReadPDF::below(QPDFObjectHandle parent) {
    std::string list;
    for (auto item = parent.getKey("/First"); item.isDictionary(); item = item.getKey("/Next")) {
        list += (list.empty() ? "" : " ") + item.getKey("/Title").getUTF8Value() + ">" + shownByLink(item);
        if (item.hasKey("/First")) list += "(" + below(item) + ")";
    }
    return list;
}

std::string ReadPDF::bookmarks() {
    auto outlines = root().getKey("/Outlines");
    return outlines.isDictionary() ? below(outlines) : "";
}

std::vector<QPDFObjectHandle> ReadPDF::links(int page) {
    std::vector<QPDFObjectHandle> found;
    auto annotations = pages().at(static_cast<std::size_t>(page - 1)).getKey("/Annots");
    if (!annotations.isArray()) return found;
    for (auto& annotation : annotations.getArrayAsVector()) {
        if (annotation.getKey("/Subtype").isNameAndEquals("/Link")) found.push_back(annotation);
    }
    return found;
}

std::string ReadPDF::labels() {
    QPDFPageLabelDocumentHelper helper(*qpdf_);
    std::string list;
    for (std::size_t i = 0; i < pages().size(); ++i) {
        auto label = helper.getLabelForPage(static_cast<long long>(i));
        list += list.empty() ? "" : ",";
        if (!label.isDictionary()) continue;
        if (auto prefix = label.getKey("/P"); prefix.isString()) list += prefix.getUTF8Value();
        if (label.hasKey("/S"))
            list +=
                label.getKey("/S").getName().substr(1) + std::to_string(label.getKey("/St").getIntValue());
    }
    return list;
}

std::string ReadPDF::fields() {
    QPDFAcroFormDocumentHelper forms(*qpdf_);
    std::multiset<std::string> named;
    std::set<QPDFObjGen> seen;
    for (const auto& page : pages()) {
        for (auto& widget : forms.getWidgetAnnotationsForPage(page)) {
            auto field = forms.getFieldForAnnotation(widget);
            auto object = field.getObjectHandle();
            if (object.getKey("/Parent").isDictionary() && !object.hasKey("/T"))
                object = object.getKey("/Parent");
            if (seen.insert(object.getObjGen()).second)
                named.insert(field.getFullyQualifiedName() + "=" + field.getValueAsString());
        }
    }
    std::string list;
    for (const auto& one : named) list += (list.empty() ? "" : ",") + one;
    return list;
}

std::string ReadPDF::everything() {
    std::string all;
    for (auto& object : qpdf_->getAllObjects()) {
        if (object.isStream()) {
            all += object.getDict().unparse();
            try {
                const auto data = object.getStreamData(qpdf_dl_all);
                all.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
            } catch (const QPDFExc&) {
                const auto data = object.getRawStreamData();
                all.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
            }
        } else {
            all += object.unparseResolved();
        }
        all += '\n';
    }
    return all;
}

InputFile input(const std::filesystem::path& file, const std::string& type) {
    return {.url = file, .root = file.parent_path(), .contentType = ContentType::withIdentifier(type)};
}

std::filesystem::path done(PDFTool tool, const std::filesystem::path& file, const PDFJobSettings& settings,
                           const WorkContext& context) {
    const auto folder = file.parent_path() / newUUID();
    std::filesystem::create_directory(folder);
    auto destination = folder / file.filename();
    pdfEngine().process(tool, input(file), destination, settings, context);
    return destination;
}

std::filesystem::path combined(PDFTool tool, const std::vector<InputFile>& files,
                               const PDFJobSettings& settings, const WorkContext& context) {
    auto destination = files.front().url.parent_path() / (newUUID() + ".pdf");
    pdfEngine().combine(tool, files, destination, settings, context);
    return destination;
}

std::filesystem::path merged(const std::vector<std::filesystem::path>& files,
                             const PDFJobSettings& settings) {
    std::vector<InputFile> inputs;
    for (const auto& file : files) inputs.push_back(input(file));
    return combined(PDFTool::merge, inputs, settings);
}

std::string outcome(const std::function<void()>& work) {
    try {
        work();
        return "done";
    } catch (const Failure& failure) {
        return failure.code();
    } catch (const ProcessorSkip&) {
        return "skipped";
    }
}

}  // namespace tamble::pdf
