#include "pictures/capture_text.h"

#include <gtest/gtest.h>

#include "fakes/world.h"

namespace pictures {
namespace {

TEST(CaptureText, ReadsTheSettingsOfTheProgram) {
    fakes::Settings settings;
    settings.put("VIDEO", "/dev/video1");
    settings.put("VIDEONORME", " PAL ");
    settings.put("VIDEOENTREE", "S-Video");
    settings.put("VIDEOCHAINE", "videotestsrc");
    const CaptureSettings read = readCaptureSettings(settings);
    EXPECT_EQ(read.device, "/dev/video1");
    EXPECT_EQ(read.norm, "PAL");
    EXPECT_EQ(read.input, "S-Video");
    EXPECT_EQ(read.pipeline, "videotestsrc");
}

TEST(CaptureText, ADeviceDecodesWhateverItDelivers) {
    EXPECT_EQ(pipelineText({}, "/dev/video0"), "v4l2src device=\"/dev/video0\" ! decodebin");
}

TEST(CaptureText, ANormIsSetAndItsHalfPicturesJoined) {
    const CaptureSettings settings{.pipeline = {}, .device = {}, .norm = "SECAM", .input = {}};
    EXPECT_EQ(pipelineText(settings, "/dev/video0"),
              "v4l2src device=\"/dev/video0\" norm=SECAM ! deinterlace fields=top");
}

TEST(CaptureText, AWholePipelineGoesBeforeAllOthers) {
    const CaptureSettings settings{.pipeline = "videotestsrc", .device = "/dev/video0", .norm = "PAL", .input = {}};
    EXPECT_EQ(pipelineText(settings, "/dev/video0"), "videotestsrc");
}

TEST(CaptureText, WithoutADeviceThereIsNothing) {
    EXPECT_EQ(pipelineText({}, {}), "");
}

TEST(CaptureText, NothingSlipsOutOfADeviceOrANorm) {
    EXPECT_EQ(pipelineText({}, "a\" ! filesink \\b"), "v4l2src device=\"a\\\" ! filesink \\\\b\" ! decodebin");
    const CaptureSettings settings{.pipeline = {}, .device = {}, .norm = "PAL ! filesink", .input = {}};
    EXPECT_EQ(pipelineText(settings, "/dev/video0"), "");
}

}  // namespace
}  // namespace pictures
