#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "qt/real_file_dialogs.h"

namespace qt {
namespace {

/// The dialogs on a folder that holds one file, `ancien.bmp`.
class FileDialogsTest : public ::testing::Test {
protected:
    FileDialogsTest() {
        QFile file(path("ancien.bmp"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QString path(const QString& name) const { return folder_.filePath(name); }

    // Does something once the file dialog is there; whatever is still open afterwards is cancelled.
    template <class Step>
    static void whenOpen(Step step) {
        QTimer::singleShot(0, qApp, [step] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            step(*dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
    }
    static void accept(QFileDialog& dialog) { QMetaObject::invokeMethod(&dialog, "accept"); }
    // Answers the toolkit's next message, and writes down what it says.
    void answerMessage(QMessageBox::StandardButton with) {
        QTimer::singleShot(0, qApp, [this, with] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            said_ << box->text();
            box->button(with)->click();
        });
    }
    std::optional<ports::SaveChoice> saveAs(const QString& name, QMessageBox::StandardButton answer) {
        whenOpen([this, name, answer](QFileDialog& dialog) {
            dialog.selectFile(path(name));
            answerMessage(answer);
            accept(dialog);
        });
        return dialogs_.save({.filter = "Jpeg (*.JPG)|*.jpg|Bitmap (*.BMP)|*.bmp",
                              .proposed = "DUPO_Mar",
                              .folder = folder_.path(),
                              .filterIndex = 2});
    }

    QTemporaryDir folder_;
    RealFileDialogs dialogs_;
    QStringList said_;
};

TEST_F(FileDialogsTest, SavingOpensInItsFolderOnItsPartOfTheFilterWithItsName) {
    whenOpen([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "save");
        EXPECT_EQ(dialog.directory().absolutePath(), QFileInfo(folder_.path()).absoluteFilePath());
        EXPECT_EQ(dialog.selectedNameFilter(), "Bitmap (*.bmp)");
        EXPECT_EQ(dialog.selectedFiles(), QStringList({path("DUPO_Mar.bmp")}));
    });
    EXPECT_FALSE(dialogs_.save({.filter = "Jpeg (*.JPG)|*.jpg|Bitmap (*.BMP)|*.bmp",
                                .proposed = "DUPO_Mar",
                                .folder = folder_.path(),
                                .filterIndex = 2}));
}

TEST_F(FileDialogsTest, SavingWarnsBeforeAFileIsReplacedAndNoKeepsIt) {
    EXPECT_FALSE(saveAs("ancien.bmp", QMessageBox::No));
    ASSERT_EQ(said_.size(), 1);
    EXPECT_TRUE(said_.first().contains("ancien.bmp")) << said_.first().toStdString();
    EXPECT_TRUE(said_.first().contains("existe déjà")) << said_.first().toStdString();
}

TEST_F(FileDialogsTest, SavingGoesOnWhereTheFileMayBeReplaced) {
    const auto choice = saveAs("ancien.bmp", QMessageBox::Yes);
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->file, path("ancien.bmp"));
    EXPECT_EQ(choice->filter, 2);
}

TEST_F(FileDialogsTest, SavingWarnsOfTheFileThatTheNameMeansWithItsEnding) {
    EXPECT_FALSE(saveAs("ancien", QMessageBox::No));
    EXPECT_EQ(said_.size(), 1);
}

TEST_F(FileDialogsTest, OpeningTakesNoFileThatIsNotThere) {
    whenOpen([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "open");
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.setDirectory(folder_.path());
        dialog.selectFile(path("absent.bmp"));
        answerMessage(QMessageBox::Ok);
        accept(dialog);
    });
    EXPECT_EQ(dialogs_.open("Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO", {}, ports::MustExist::Yes), "");
}

TEST_F(FileDialogsTest, OpeningTakesANameThatIsNotThereWhereItNeedNotBe) {
    whenOpen([this](QFileDialog& dialog) {
        dialog.setDirectory(folder_.path());
        dialog.selectFile(path("Mardi "));
        accept(dialog);
    });
    EXPECT_EQ(dialogs_.open("Fichiers Veranox (*.*)|*.*", {}, ports::MustExist::No), path("Mardi "));
}

TEST_F(FileDialogsTest, ShowFilesWhateverTheCaseOfTheirEndings) {
    EXPECT_EQ(toolkitFilter("Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO"),
              "Images (*.BMP *.bmp *.JPG *.jpg *.ICO *.ico)");
    EXPECT_EQ(toolkitFilter("Bases (*.MDB)|*.MDB|Tout (*.*)|*.*"), "Bases (*.MDB *.mdb);;Tout (*)");
}

}  // namespace
}  // namespace qt
