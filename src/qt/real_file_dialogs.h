#pragma once

#include "ports/file_dialogs.h"

class QFileDialog;

namespace qt {

/// The toolkit's own dialogs, which speak French whatever the desktop.
class RealFileDialogs final : public ports::FileDialogs {
public:
    QString open(const QString& filter, const QString& proposed, ports::MustExist mustExist) override;
    std::optional<ports::SaveChoice> save(const ports::SaveRequest& request) override;

private:
    QString lastFolder() const;
    /// The full path that was chosen, empty on Cancel.
    QString run(QFileDialog& dialog);

    QString folder_;
};

/// "Bases (*.MDB)|*.MDB|Tout|*.*" as the toolkit wants it: "Bases (*.MDB);;Tout (*)". Case is ignored.
QString toolkitFilter(const QString& filter);

}  // namespace qt
