#include "qt/video_device.h"

#include <fcntl.h>
#include <linux/videodev2.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QCollator>
#include <QDir>
#include <QFile>
#include <algorithm>

namespace qt {
namespace {

class Device {
public:
    explicit Device(const QString& path)
        : number_(::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC)) {}
    ~Device() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool ask(unsigned long request, void* answer) const {
        return number_ >= 0 && ::ioctl(number_, request, answer) == 0;
    }

private:
    int number_;
};

bool deliversPictures(const QString& path) {
    v4l2_capability abilities{};
    return Device(path).ask(VIDIOC_QUERYCAP, &abilities) && (abilities.device_caps & V4L2_CAP_VIDEO_CAPTURE);
}

}  // namespace

QString firstVideoDevice() {
    const QDir folder(QStringLiteral("/dev"));
    QStringList names = folder.entryList({QStringLiteral("video*")}, QDir::System);
    QCollator byNumber;
    byNumber.setNumericMode(true);
    std::sort(names.begin(), names.end(), byNumber);
    for (const QString& name : names) {
        if (deliversPictures(folder.filePath(name))) {
            return folder.filePath(name);
        }
    }
    return {};
}

bool selectVideoInput(const QString& device, const QString& input) {
    const Device card(device);
    v4l2_input known{};
    for (; card.ask(VIDIOC_ENUMINPUT, &known); ++known.index) {
        if (QString::fromUtf8(reinterpret_cast<const char*>(known.name)).compare(input, Qt::CaseInsensitive) == 0) {
            int index = static_cast<int>(known.index);
            return card.ask(VIDIOC_S_INPUT, &index);
        }
    }
    return false;
}

}  // namespace qt
