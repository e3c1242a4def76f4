#pragma once

#include <QString>

namespace ports {

/// The per-user settings: application key, section, key, all compared without regard to case. Values are texts.
class Settings {
public:
    virtual ~Settings() = default;
    /// The value, or `fallback` if none was ever saved. A value saved empty is there, and empty.
    virtual QString read(const QString& application, const QString& section, const QString& key,
                         const QString& fallback = {}) const = 0;
    /// Whether a value was ever saved.
    virtual bool has(const QString& application, const QString& section, const QString& key) const = 0;
    /// Throws PermissionDenied if the value can't be kept.
    virtual void save(const QString& application, const QString& section, const QString& key, const QString& value) = 0;
};

/// Where this program keeps its own.
inline const QString kApplication = QStringLiteral("MARELLES");
inline const QString kSection = QStringLiteral("ECHO");

}  // namespace ports
