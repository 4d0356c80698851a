#pragma once

#include <TambleCore/PDF/Structure/Carrying/CarriedObjects.h>

#include <functional>
#include <map>

namespace tamble::pdf {

/// The objects that belong to a new file as a whole, while the rest comes from other documents: a document in
/// which stand-ins refer to what those bring.
class Frame {
  public:
    Frame();

    const Document& document() const noexcept { return document_; }
    QPDFObjectHandle root() const { return document_.root(); }
    QPDFObjectHandle pages() const { return document_.root().getKey("/Pages"); }

    /// A new object of the frame that others refer to by a number of their choice.
    QPDFObjectHandle makeObject(QPDFObjectHandle object, int number);
    /// The same under a new number, which it answers.
    int addObject(QPDFObjectHandle object, FileWriter& writer);
    /// Gives an object of the frame its number.
    void give(QPDFObjectHandle object, int number);

    /// Refers to the object that comes under this number.
    QPDFObjectHandle standIn(int number);

    /// A copy of a value of another document; `take` is told each object that it refers to, and answers its
    /// number.
    using Take = std::function<int(QPDFObjectHandle object)>;
    QPDFObjectHandle copied(QPDFObjectHandle value, const Take& take);
    /// The same of what an object holds, one level deep.
    QPDFObjectHandle copiedContent(QPDFObjectHandle object, const Take& take);

    /// Writes the frame's own objects and ends the file. `information`: the number of /Info.
    void finish(FileWriter& writer, const std::stop_token& stop, std::optional<int> information = {});

  private:
    Document document_ = Document::empty();
    Renumbering numbers_;
    std::map<int, QPDFObjectHandle> standIns_;
    /// Objects to which nothing in the frame refers.
    std::vector<QPDFObjectHandle> others_;
};

}  // namespace tamble::pdf
