#pragma once

#include <TambleCore/Platform/FileDescriptor.h>

#include <filesystem>
#include <mutex>
#include <span>

#include <qpdf/QPDFObjectHandle.hh>

namespace tamble::pdf {

/// Keeps the data of new streams on the disk until their document is written, so that a book's pages need
/// no memory.
class StreamStore {
  public:
    /// In an unnamed file in that folder. Throws PDFError::writeFailed.
    explicit StreamStore(const std::filesystem::path& folder);

    struct Piece {
        std::uint64_t at = 0;
        std::size_t size = 0;
    };
    /// To be called from several threads. Throws PDFError::writeFailed.
    Piece add(std::span<const std::byte> data);

    /// What gives a stream its data. The store must live until the document is written.
    std::shared_ptr<QPDFObjectHandle::StreamDataProvider> provider(Piece piece) const;

  private:
    FileDescriptor file_;
    std::mutex mutex_;
    std::uint64_t size_ = 0;
};

}  // namespace tamble::pdf
