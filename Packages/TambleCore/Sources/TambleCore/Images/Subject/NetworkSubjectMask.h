#pragma once

#include <TambleCore/Images/SubjectMask.h>

#include <filesystem>
#include <memory>

namespace tamble {

/// Finds subjects with a salient-object network in an ONNX file.
///
/// The network takes one picture, 1 × 3 × height × width in RGB order, scaled to 0…1 and then normalised with
/// the mean and deviation of ImageNet (0.485, 0.456, 0.406; 0.229, 0.224, 0.225). An open size is run at 320
/// × 320. Of its outputs the first of the input's size counts, else the largest; it has one channel with
/// probabilities, or with logits when any value lies outside 0…1. There is no subject where less than a
/// thousandth of it is above one half.
///
/// Pictures are looked at one at a time with all processors; a stop request is obeyed while waiting, and
/// before and after the network runs, which itself cannot be interrupted.
class NetworkSubjectMask final : public SubjectMask {
  public:
    /// Throws ConversionError::backgroundRemovalFailed when the file cannot be read or is not such a network.
    explicit NetworkSubjectMask(const std::filesystem::path& model);
    ~NetworkSubjectMask() override;

    std::optional<std::vector<std::uint8_t>> find(const SubjectPicture& picture,
                                                  const WorkContext& context) const override;

  private:
    class Network;
    std::unique_ptr<Network> network_;
};

}  // namespace tamble
