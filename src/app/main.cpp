#include <QApplication>

#include "base/process.h"
#include "ports/clock.h"
#include "ports/settings_file.h"
#include "qt/french.h"
#include "qt/program_folder.h"
#include "qt/real_boxes.h"
#include "qt/real_clipboard.h"
#include "qt/real_file_dialogs.h"
#include "qt/real_font_dialog.h"
#include "qt/real_help.h"
#include "qt/real_picture_source.h"
#include "qt/real_printers.h"
#include "qt/stage.h"
#include "qt/theme.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    base::settleProcess();
    QApplication application(argc, argv);
    qt::speakFrench(application);
    qt::theme::apply(application);

    ports::SystemClock clock;
    ports::SettingsFile settings(ports::userSettingsPath());
    qt::RealBoxes boxes;
    qt::RealFileDialogs fileDialogs;
    qt::RealPrinters printers;
    // The program may write elsewhere than where it was installed.
    qt::RealHelp help(boxes, printers, QApplication::applicationDirPath());
    qt::RealFontDialog fontDialog;
    qt::RealClipboard clipboard;
    qt::RealPictureSource pictureSource(settings);
    shell::Program program({clock, settings, boxes, fileDialogs, help, printers, fontDialog, clipboard, pictureSource,
                            qt::programFolder()});
    qt::WindowStage stage(program.desk(), [] { QApplication::exit(0); });
    stage.onHelp = [&](const QString& window) { program.showHelp(window); };
    QApplication::setQuitOnLastWindowClosed(false);
    program.desk().act([&] { ports::renewDamaged(settings, boxes); });
    program.start();
    return program.desk().ended() ? 0 : QApplication::exec();
}
