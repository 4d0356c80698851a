#pragma once

#include <TambleCore/PDF/Structure/Carrying/FileWriter.h>
#include <TambleCore/PDF/Structure/Carrying/ObjectText.h>
#include <TambleCore/PDF/Structure/Document.h>

namespace tamble::pdf {

/// All objects of a document that can be reached from some of them, as they will be written into another:
/// everything that takes time is done when they are collected, which several threads do for several documents
/// at once.
class CarriedObjects {
  public:
    /// The document must live until the objects are written. Throws Cancelled.
    static CarriedObjects reachable(const Document& document, const std::vector<QPDFObjectHandle>& from,
                                    const Renumbering& numbers, const std::stop_token& stop);

    void writeTo(FileWriter& writer) const;

  private:
    struct Stream {
        int number = 0;
        std::string dictionary;
        /// As stored in the file; left there when it is long.
        std::string data;
        std::optional<QPDFObjectHandle> stored;
    };
    void add(QPDFObjectHandle object, const Renumbering& numbers, std::vector<QPDFObjGen>& references);
    void addStream(QPDFObjectHandle stream, int number, const Renumbering& numbers,
                   std::vector<QPDFObjGen>& references);
    void closePack();

    std::vector<Stream> streams_;
    std::vector<ObjectPack> packs_;
};

}  // namespace tamble::pdf
