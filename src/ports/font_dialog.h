#pragma once

#include <QColor>
#include <QString>
#include <optional>

namespace ports {

/// What a person chooses of a font.
struct FontChoice {
    QString name;
    double size = 12;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    QColor color = Qt::black;
};

class FontDialog {
public:
    virtual ~FontDialog() = default;
    /// Shows the dialog, at first on `current`; nothing on Cancel.
    virtual std::optional<FontChoice> choose(const FontChoice& current) = 0;
};

}  // namespace ports
