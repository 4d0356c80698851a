#pragma once

#include <TambleCore/PDF/Pictures/Bytes.h>
#include <TambleCore/Platform/FileDescriptor.h>

#include <cstdint>
#include <filesystem>

#include <qpdf/Pipeline.hh>

namespace tamble::pdf {

/// Keeps data out of memory, in a file without a name.
class ScratchFile {
  public:
    struct Part {
        std::uint64_t offset = 0;
        std::size_t size = 0;
    };

    /// Throws PDFError::writeFailed, as all here.
    explicit ScratchFile(const std::filesystem::path& folder);

    Part append(ByteView data);
    void copy(Part part, Pipeline& to) const;

  private:
    FileDescriptor file_;
    std::uint64_t end_ = 0;
};

}  // namespace tamble::pdf
