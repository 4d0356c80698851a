#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>
#include <TambleCore/Support/WorkContext.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <qpdf/QPDFObjectHandle.hh>

namespace tamble::pdf {

/// One way in which a stream was coded, and how.
struct StreamFilter {
    /// Such as "/FlateDecode".
    std::string name;
    /// A dictionary, or null.
    QPDFObjectHandle parameters;
};

/// In the order in which they are to be taken back. Empty when the stream says nonsense.
std::optional<std::vector<StreamFilter>> filtersOf(QPDFObjectHandle stream);

/// The bytes as they lie in the file, decrypted; empty when they cannot be had.
std::shared_ptr<Buffer> codedData(QPDFObjectHandle stream);

/// The bytes after taking back all filters but the `leave` last; empty when that fails or is more than
/// `limit` bytes, of which no more are ever held. Throws Cancelled.
std::optional<Bytes> decodedData(QPDFObjectHandle stream, std::size_t limit, const WorkContext& context,
                                 std::size_t leave = 0);

}  // namespace tamble::pdf
