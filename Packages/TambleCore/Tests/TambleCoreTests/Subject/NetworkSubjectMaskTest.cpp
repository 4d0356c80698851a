#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/Subject/NetworkSubjectMask.h>

#include <fstream>
#include <thread>

#include "OnnxFile.h"
#include "PaintedPicture.h"
#include <unistd.h>

namespace tamble {
namespace {

/// A model in a file of its own, gone with the test.
class ModelFile {
  public:
    explicit ModelFile(const std::string& bytes)
        : path_(std::filesystem::temp_directory_path() /
                fmt::format("subject-{}-{}.onnx", getpid(), count++)) {
        std::ofstream(path_, std::ios::binary) << bytes;
    }
    ~ModelFile() { std::filesystem::remove(path_); }
    ModelFile(const ModelFile&) = delete;
    ModelFile& operator=(const ModelFile&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    static inline int count = 0;
    std::filesystem::path path_;
};

enum class Answer { logits, probabilities };

/// Calls subject what has more red than blue, both as ImageNet's normalisation gives them: only then is grey
/// not red.
OnnxFile redNetwork(const std::vector<std::int64_t>& shape, Answer answer) {
    OnnxFile file;
    file.addInput("picture", shape);
    file.addWeights("weights", {1, 3, 1, 1}, {8 * 0.229F, 0, -8 * 0.225F});
    // Takes back the means, and asks for a difference of a quarter.
    file.addWeights("bias", {1}, {8 * (0.485F - 0.406F) - 2});
    file.addNode("Conv", {"picture", "weights", "bias"}, "raw", 1);
    if (answer == Answer::probabilities) file.addNode("Sigmoid", {"raw"}, "map");
    file.addOutput(answer == Answer::probabilities ? "map" : "raw");
    return file;
}

PaintedPicture redDisc(int width, int height) {
    return paint(width, height, 4, [&](int x, int y) {
        return Disc().covers(x, y, width) ? Colour{230, 60, 50} : Colour{120, 130, 125};
    });
}

TEST(NetworkSubjectMask, followsNetworksOfAllUsualShapes) {
    for (const auto& shape : std::vector<std::vector<std::int64_t>>{
             {1, 3, 96, 96}, {1, 3, 64, 128}, {1, 3, 0, 0}, {0, 3, 0, 0}}) {
        for (const Answer answer : {Answer::logits, Answer::probabilities}) {
            const ModelFile model(redNetwork(shape, answer).bytes());
            const NetworkSubjectMask engine(model.path());
            const auto picture = redDisc(700, 500);
            const auto mask = engine.find(picture.view(), {});
            ASSERT_TRUE(mask) << testing::PrintToString(shape);
            ASSERT_EQ(mask->size(), 700U * 500U);
            EXPECT_GT(overlap(*mask, picture, {}), 0.96) << testing::PrintToString(shape);
        }
    }
}

TEST(NetworkSubjectMask, takesTheOutputOfFullSize) {
    OnnxFile file = redNetwork({1, 3, 96, 96}, Answer::probabilities);
    // A coarse map that says the opposite, and comes later.
    file.addNode("Neg", {"raw"}, "opposite");
    file.addNode("AveragePool", {"opposite"}, "coarse", 4);
    file.addOutput("coarse");
    const ModelFile model(file.bytes());
    const auto picture = redDisc(300, 300);
    EXPECT_GT(overlap(NetworkSubjectMask(model.path()).find(picture.view(), {}).value(), picture, {}), 0.95);
}

TEST(NetworkSubjectMask, enlargesACoarseAnswerAlongThePhotosEdges) {
    OnnxFile file;
    file.addInput("picture", {1, 3, 256, 256});
    file.addWeights("weights", {1, 3, 1, 1}, {8 * 0.229F, 0, -8 * 0.225F});
    file.addWeights("bias", {1}, {8 * (0.485F - 0.406F) - 2});
    file.addNode("AveragePool", {"picture"}, "small", 8);
    file.addNode("Conv", {"small", "weights", "bias"}, "map", 1);
    file.addOutput("map");
    const ModelFile model(file.bytes());
    const auto picture = redDisc(1024, 820);
    const auto mask = NetworkSubjectMask(model.path()).find(picture.view(), {}).value();
    // One step of the answer is 32 pixels; half a step off around the disc would leave 0.85.
    EXPECT_GT(overlap(mask, picture, {}), 0.96);
}

TEST(NetworkSubjectMask, findsNothingWhereTheNetworkSeesNothing) {
    const ModelFile model(redNetwork({1, 3, 96, 96}, Answer::logits).bytes());
    const auto grey = paint(200, 100, 20, [](int, int) { return Colour{128, 128, 128}; });
    EXPECT_FALSE(NetworkSubjectMask(model.path()).find(grey.view(), {}));
}

TEST(NetworkSubjectMask, servesSeveralPicturesAtOnceAndObeysAStop) {
    const ModelFile model(redNetwork({1, 3, 0, 0}, Answer::logits).bytes());
    const NetworkSubjectMask engine(model.path());
    const auto wide = redDisc(400, 300);
    const auto tall = redDisc(300, 400);
    const auto expectedWide = engine.find(wide.view(), {});
    const auto expectedTall = engine.find(tall.view(), {});
    std::array<bool, 4> same{};
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < same.size(); ++i) {
        threads.emplace_back([&, i] {
            same[i] =
                engine.find(wide.view(), {}) == expectedWide && engine.find(tall.view(), {}) == expectedTall;
        });
    }
    threads.clear();
    EXPECT_THAT(same, testing::Each(true));

    std::stop_source source;
    source.request_stop();
    EXPECT_THROW(engine.find(wide.view(), {.stop = source.get_token()}), Cancelled);
}

/// What loading the model and looking at one picture throws: nothing, a ConversionError, or something else,
/// which fails.
bool refused(const std::string& bytes) {
    const ModelFile model(bytes);
    const auto picture = redDisc(40, 40);
    try {
        NetworkSubjectMask(model.path()).find(picture.view(), {});
        return false;
    } catch (const ConversionError& error) {
        EXPECT_EQ(error.which(), ConversionError::Case::backgroundRemovalFailed);
        EXPECT_FALSE(error.detail().empty());
        return true;
    }
}

TEST(NetworkSubjectMask, refusesWhatIsNoSuchNetwork) {
    EXPECT_TRUE(refused(""));
    EXPECT_TRUE(refused("This is a text."));
    EXPECT_TRUE(refused(std::string(5000, '\xff')));
    for (const auto& shape : std::vector<std::vector<std::int64_t>>{
             {}, {3, 96, 96}, {1, 1, 96, 96}, {4, 3, 96, 96}, {1, 3, 100'000, 96}}) {
        EXPECT_TRUE(refused(redNetwork(shape, Answer::logits).bytes())) << testing::PrintToString(shape);
    }
    OnnxFile unknown = redNetwork({1, 3, 96, 96}, Answer::logits);
    unknown.addNode("NoSuchOperation", {"raw"}, "strange");
    unknown.addOutput("strange");
    EXPECT_TRUE(refused(unknown.bytes()));

    OnnxFile threeChannels;
    threeChannels.addInput("picture", {1, 3, 96, 96});
    threeChannels.addNode("Sigmoid", {"picture"}, "map");
    threeChannels.addOutput("map");
    EXPECT_TRUE(refused(threeChannels.bytes()));
    EXPECT_THROW(NetworkSubjectMask("/no/such/model.onnx"), ConversionError);
    EXPECT_THROW(NetworkSubjectMask(std::filesystem::temp_directory_path()), ConversionError);
}

TEST(NetworkSubjectMask, survivesADamagedModel) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "OpenCV's importer reads past a tensor that is shorter than its shape says.";
#endif
    const std::string whole = redNetwork({1, 3, 32, 32}, Answer::probabilities).bytes();
    for (std::size_t length = 1; length < whole.size(); length += 3)
        EXPECT_TRUE(refused(whole.substr(0, length))) << length;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
        // Some of them are harmless; none may end the program or throw anything else.
        EXPECT_NO_THROW(refused(damaged)) << i;
    }
}

}  // namespace
}  // namespace tamble
