#include "pictures/common_dialog.h"

#include <gtest/gtest.h>

#include "fakes/world.h"

namespace pictures {
namespace {

TEST(CommonDialog, AsksWithItsFilterAndTheNameThatIsThere) {
    fakes::FileDialogs dialogs;
    OpenFile request{.filter = "Images|*.BMP:Tout|*.*", .file = "coeur.bmp"};
    openFile(dialogs, request);
    EXPECT_EQ(dialogs.filters, QStringList({"Images|*.BMP|Tout|*.*"}));
    EXPECT_EQ(dialogs.proposals, QStringList({"coeur.bmp"}));
}

TEST(CommonDialog, GivesBackTheChosenNameUpToItsFirstZero) {
    fakes::FileDialogs dialogs;
    dialogs.chosen = QStringLiteral("/photos/face.jpg") + QChar(u'\0') + QStringLiteral("reste");
    OpenFile request{.filter = "Images|*.BMP"};
    EXPECT_TRUE(openFile(dialogs, request));
    EXPECT_EQ(request.file, "/photos/face.jpg");
}

TEST(CommonDialog, LeavesTheNameOnCancel) {
    fakes::FileDialogs dialogs;
    OpenFile request{.filter = "Images|*.BMP", .file = "coeur.bmp"};
    EXPECT_FALSE(openFile(dialogs, request));
    EXPECT_EQ(request.file, "coeur.bmp");
}

}  // namespace
}  // namespace pictures
