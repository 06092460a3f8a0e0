#include "layout/preview_picture.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(PreviewPicture, IsTheSchemesOwn) {
  Scheme scheme;
  scheme.preview.assign("img\\preview\\meadow.bmp");
  EXPECT_EQ(PreviewPicture(&scheme), "img\\preview\\meadow.bmp");
}

TEST(PreviewPicture, WithoutASchemeOrAPreviewItIsTheCommonOne) {
  Scheme scheme;
  EXPECT_EQ(PreviewPicture(nullptr), "s0.bmp");
  EXPECT_EQ(PreviewPicture(&scheme), "s0.bmp");
  scheme.preview.assign("");
  EXPECT_EQ(PreviewPicture(&scheme), "s0.bmp");
}

TEST(CentredIn, PutsAPictureInTheMiddle) {
  EXPECT_EQ(CentredIn({10, 20, 100, 60}, {40, 20}), (Rectangle{40, 40, 40, 20}));
  EXPECT_EQ(CentredIn({0, 0, 5, 5}, {5, 5}), (Rectangle{0, 0, 5, 5}));
}

TEST(CentredIn, ALargerPictureStandsOutOnBothSides) {
  EXPECT_EQ(CentredIn({10, 20, 100, 60}, {120, 100}), (Rectangle{0, 0, 120, 100}));
}

}  // namespace
}  // namespace varlo
