#include "store/other_station.h"

namespace {
constexpr int kPatienceInMs = 10000;
constexpr int kLongPatienceInMs = 60000;
}  // namespace

OtherStation::OtherStation(const QString& verb, const QString& path, const QStringList& more) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QStringLiteral(STORE_STATION), QStringList{verb, path} + more);
    process_.waitForStarted();
}

OtherStation::~OtherStation() {
    kill();
}

QString OtherStation::line() {
    while (!process_.canReadLine() && process_.waitForReadyRead(kPatienceInMs)) {
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
}

QStringList OtherStation::finish() {
    process_.waitForFinished(kLongPatienceInMs);
    return restOfLines();
}

QStringList OtherStation::kill() {
    process_.kill();
    process_.waitForFinished();
    return restOfLines();
}

QStringList OtherStation::restOfLines() {
    QStringList lines;
    while (process_.canReadLine()) {
        lines << QString::fromUtf8(process_.readLine()).trimmed();
    }
    return lines;
}

QString errorLine(base::ErrorNumber number) {
    return QStringLiteral("error %1 ").arg(static_cast<int>(number));
}
