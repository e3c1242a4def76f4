#pragma once

#include "ports/file_dialogs.h"

namespace qt {

/// The toolkit's own dialogs, which speak French whatever the desktop.
class RealFileDialogs final : public ports::FileDialogs {
public:
    QString open(const QString& filter, const QString& proposed) override;

private:
    QString folder_;
};

/// "Bases (*.MDB)|*.MDB|Tout|*.*" as the toolkit wants it: "Bases (*.MDB);;Tout (*)". Case is ignored.
QString toolkitFilter(const QString& filter);

}  // namespace qt
