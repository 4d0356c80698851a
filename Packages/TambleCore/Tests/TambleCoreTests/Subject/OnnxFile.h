#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tamble {

/// Writes small ONNX files: just enough of protobuf and of onnx.proto for the networks of these tests.
class OnnxFile {
  public:
    /// A size of 0 is open.
    void addInput(const std::string& name, const std::vector<std::int64_t>& shape);
    void addOutput(const std::string& name);
    /// `window` is the side of the square, and the step, of those that go over the picture; 0 for all others.
    void addNode(const std::string& operation, const std::vector<std::string>& inputs,
                 const std::string& output, std::int64_t window = 0);
    void addWeights(const std::string& name, const std::vector<std::int64_t>& shape,
                    const std::vector<float>& values);

    std::string bytes() const;

  private:
    std::string graph_;
};

}  // namespace tamble
