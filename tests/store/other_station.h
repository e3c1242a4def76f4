#pragma once

#include <QProcess>
#include <QStringList>

#include "base/errors.h"

/// Another workstation at work on a file, in a process of its own.
class OtherStation {
public:
    OtherStation(const QString& verb, const QString& path, const QStringList& more = {});
    ~OtherStation();
    OtherStation(const OtherStation&) = delete;
    OtherStation& operator=(const OtherStation&) = delete;

    /// The next line that it answers; empty if it ended or nothing came for ten seconds.
    QString line();
    /// Waits for its end and returns the rest of its lines.
    QStringList finish();
    /// Kills it on the spot and returns the rest of its whole lines.
    QStringList kill();

private:
    QStringList restOfLines();

    QProcess process_;
};

/// The start of the line with which a station tells of an error.
QString errorLine(base::ErrorNumber number);
