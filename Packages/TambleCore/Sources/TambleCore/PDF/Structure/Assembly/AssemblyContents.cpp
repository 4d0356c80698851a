#include <TambleCore/PDF/Structure/Assembly/Assembly.h>

#include <algorithm>
#include <numeric>

#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFNumberTreeObjectHelper.hh>

/// What an assembly takes over of each part beside its pages and bookmarks.
namespace tamble::pdf {
namespace {

/// "name", or the first of "name 2", "name 3", … that is not taken.
template <typename Taken>
std::string freeName(const std::string& name, const Taken& taken) {
    std::string candidate = name;
    for (int number = 2; taken.contains(candidate); ++number) candidate = fmt::format("{} {}", name, number);
    return candidate;
}

QPDFObjectHandle subdictionary(QPDFObjectHandle parent, const std::string& key) {
    if (!parent.getKey(key).isDictionary()) parent.replaceKey(key, QPDFObjectHandle::newDictionary());
    return parent.getKey(key);
}

QPDFObjectHandle sublist(QPDFObjectHandle parent, const std::string& key) {
    if (!parent.getKey(key).isArray()) parent.replaceKey(key, QPDFObjectHandle::newArray());
    return parent.getKey(key);
}

/// More than any document has; a damaged one may say anything.
constexpr long long maximumTagIndex = 10'000'000;

/// Adds the entries of a dictionary that the other one does not have.
void addMissing(QPDFObjectHandle to, QPDFObjectHandle from) {
    for (const auto& [key, value] : from.getDictAsMap()) {
        if (!to.hasKey(key)) to.replaceKey(key, value);
    }
}

}  // namespace

void Assembly::addNamedPlaces(AssemblyPart& part) {
    const auto& named = part.destinations().named();
    const bool anyTaken =
        std::ranges::any_of(named, [this](const auto& entry) { return namedPlaces_.contains(entry.first); });
    // A name that another part has, too, leads there.
    makePlacesExplicit(part.document(), part.destinations(), anyTaken ? Naming::any : Naming::older);
    for (const auto& [name, place] : named) {
        if (namedPlaces_.contains(name)) continue;
        auto own = place;
        auto copy = QPDFObjectHandle::newArray();
        for (const auto& item : own.getArrayAsVector()) copy.appendItem(inFrame(part, item));
        namedPlaces_.emplace(name, copy);
    }
}

void Assembly::addFields(AssemblyPart& part) {
    auto form = part.document().root().getKey("/AcroForm");
    if (!form.isDictionary() || !form.getKey("/Fields").isArray()) return;
    auto whole = subdictionary(frame_.root(), "/AcroForm");
    for (auto& field : form.getKey("/Fields").getArrayAsVector()) {
        if (!field.isDictionary() || !field.isIndirect()) continue;
        if (auto name = field.getKey("/T"); name.isString()) {
            const std::string free = freeName(name.getUTF8Value(), fieldNames_);
            fieldNames_.insert(free);
            field.replaceKey("/T", QPDFObjectHandle::newUnicodeString(free));
        }
        // What the form says for all of its fields does not hold for those of others.
        for (const char* key : {"/DA", "/Q"}) {
            if (form.hasKey(key) && !field.hasKey(key)) field.replaceKey(key, form.getKey(key));
        }
        sublist(whole, "/Fields").appendItem(inFrame(part, field));
    }
    if (auto resources = form.getKey("/DR"); resources.isDictionary()) {
        for (const auto& [category, entries] : resources.getDictAsMap()) {
            auto listed = entries;
            if (listed.isDictionary()) {
                auto copies = QPDFObjectHandle::newDictionary();
                for (const auto& [key, value] : listed.getDictAsMap())
                    copies.replaceKey(key, inFrame(part, value));
                addMissing(subdictionary(subdictionary(whole, "/DR"), category), copies);
            }
        }
    }
    if (auto needs = form.getKey("/NeedAppearances"); needs.isBool() && needs.getBoolValue())
        whole.replaceKey("/NeedAppearances", QPDFObjectHandle::newBool(true));
    if (auto order = form.getKey("/CO"); order.isArray()) {
        for (const auto& field : order.getArrayAsVector())
            sublist(whole, "/CO").appendItem(inFrame(part, field));
    }
}

void Assembly::addLabels(AssemblyPart& part) {
    hasLabels_ = hasLabels_ || hasLabels(part.document());
    std::vector<int> pages(static_cast<std::size_t>(part.document().pageCount()));
    std::iota(pages.begin(), pages.end(), 0);
    PageLabels labels;
    appendLabels(part.document(), pages, pageCount_, labels);
    for (const auto& label : labels) labels_.push_back(contentInFrame(part, label));
}

void Assembly::addAttachments(AssemblyPart& part) {
    QPDFEmbeddedFileDocumentHelper files(part.document().qpdf());
    if (!files.hasEmbeddedFiles()) return;
    for (const auto& [name, file] : files.getEmbeddedFiles()) {
        const auto stored = [](const std::string& text) {
            return QPDFObjectHandle::newUnicodeString(text).getStringValue();
        };
        std::string free = name;
        for (int number = 2; attachments_.contains(stored(free)); ++number)
            free = fmt::format("{} {}", name, number);
        attachments_.emplace(stored(free), inFrame(part, file->getObjectHandle()));
    }
}

void Assembly::addLayers(AssemblyPart& part) {
    auto layers = part.document().root().getKey("/OCProperties");
    if (!layers.isDictionary()) return;
    auto copy = QPDFObjectHandle::newDictionary();
    copy.replaceKey("/OCGs", contentInFrame(part, layers.getKey("/OCGs")));
    auto setup = QPDFObjectHandle::newDictionary();
    if (auto own = layers.getKey("/D"); own.isDictionary()) {
        for (const auto& [key, value] : own.getDictAsMap())
            setup.replaceKey(key, contentInFrame(part, value));
    }
    copy.replaceKey("/D", setup);
    auto root = frame_.root();
    if (!root.hasKey("/OCProperties")) {
        root.replaceKey("/OCProperties", copy);
        return;
    }
    const auto append = [](QPDFObjectHandle to, QPDFObjectHandle from, const std::string& key) {
        if (!from.getKey(key).isArray()) return;
        for (const auto& item : from.getKey(key).getArrayAsVector()) sublist(to, key).appendItem(item);
    };
    auto whole = root.getKey("/OCProperties");
    append(whole, copy, "/OCGs");
    for (const char* key : {"/ON", "/OFF", "/Order", "/RBGroups", "/Locked"})
        append(subdictionary(whole, "/D"), setup, key);
}

/// The part's tree of tags becomes a branch of the whole's.
void Assembly::addTags(AssemblyPart& part) {
    auto tree = part.document().root().getKey("/StructTreeRoot");
    if (!tree.isIndirect()) return;
    auto whole = tags_;
    whole.replaceKey("/Type", QPDFObjectHandle::newName("/StructTreeRoot"));
    whole.replaceKey("/K", taggedParts_);
    taggedParts_.replaceKey("/Type", QPDFObjectHandle::newName("/StructElem"));
    taggedParts_.replaceKey("/S", QPDFObjectHandle::newName("/Document"));
    taggedParts_.replaceKey("/P", tags_);
    sublist(taggedParts_, "/K").appendItem(inFrame(part, tree));
    auto places = tree.getKey("/ParentTree");
    if (places.isDictionary()) {
        auto numbers = QPDFObjectHandle::newArray();
        int last = -1;
        const int first = tagCount_;
        for (const auto& [index, parents] :
             QPDFNumberTreeObjectHelper(places, part.document().qpdf()).getAsMap()) {
            last = static_cast<int>(std::min<long long>(index, maximumTagIndex));
            numbers.appendItem(QPDFObjectHandle::newInteger(first + last));
            numbers.appendItem(parents);
        }
        if (last >= 0) {
            auto node = QPDFObjectHandle::newDictionary();
            node.replaceKey("/Nums", numbers);
            auto limits = QPDFObjectHandle::newArray();
            limits.appendItem(numbers.getArrayItem(0));
            limits.appendItem(QPDFObjectHandle::newInteger(first + last));
            node.replaceKey("/Limits", limits);
            tree.replaceKey("/ParentTree", node);
            sublist(subdictionary(whole, "/ParentTree"), "/Kids").appendItem(inFrame(part, part.keep(node)));
            tagCount_ += last + 1;
        }
    }
    for (const char* key : {"/RoleMap", "/ClassMap"}) {
        auto roles = tree.getKey(key);
        if (roles.isDictionary()) addMissing(subdictionary(whole, key), contentInFrame(part, roles));
    }
    for (const char* key : {"/ParentTree", "/ParentTreeNextKey", "/RoleMap", "/ClassMap", "/IDTree"})
        tree.removeKey(key);
    tree.replaceKey("/Type", QPDFObjectHandle::newName("/StructElem"));
    tree.replaceKey("/S", QPDFObjectHandle::newName("/Document"));
    tree.replaceKey("/P", part.reference(taggedPartsNumber_));
    frame_.root().replaceKey("/StructTreeRoot", tags_);
    subdictionary(frame_.root(), "/MarkInfo").replaceKey("/Marked", QPDFObjectHandle::newBool(true));
}

}  // namespace tamble::pdf
