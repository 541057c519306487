#pragma once

#include <QHash>
#include <QObject>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

namespace kestrowind {

/// The user's settings in three domains, the first that holds a key wins: the launch arguments
/// (`-Key value`, this run only), what was stored, and the defaults registered at start-up.
///
/// Belongs to the main thread. A stored change is on disk when the call returns; one that could not
/// be written is a warning in the log, and tried again with the next one.
class UserDefaults final : public QObject {
    Q_OBJECT

public:
    /// Opens the native settings store: at once, and anew after something could not be stored.
    using OpenStore = std::function<std::unique_ptr<QSettings>()>;

    /// `arguments` without the program's name.
    UserDefaults(const QStringList& arguments, OpenStore openStore);
    ~UserDefaults() override;

    /// Whether an argument is a hyphen and a key; a negative number is none.
    [[nodiscard]] static bool isArgumentKey(const QString& argument);
    /// The pairs of the argument domain: a key, then a value that is not itself a key. A key with
    /// no value is no pair. A value in round brackets is a list of texts: `(automatic, "a b")`.
    [[nodiscard]] static QHash<QString, QVariant> parseArguments(const QStringList& arguments);

    [[nodiscard]] std::optional<QString> string(const QString& key) const;
    [[nodiscard]] std::optional<QStringList> stringArray(const QString& key) const;
    /// False when absent. Texts count as the platform counts them: after blanks, a sign and zeros,
    /// a first character of Y, y, T, t or 1 to 9 is true.
    [[nodiscard]] bool boolean(const QString& key) const;
    /// 0 when absent; of a text the number it begins with.
    [[nodiscard]] double number(const QString& key) const;

    void setString(const QString& key, const QString& value);
    void setStringArray(const QString& key, const QStringList& value);
    void setBoolean(const QString& key, bool value);
    void remove(const QString& key);

    void registerDefault(const QString& key, const QVariant& value);

Q_SIGNALS:
    /// A stored value really changed.
    void changed(const QString& key);

private:
    [[nodiscard]] QVariant value(const QString& key) const;
    /// An invalid value removes.
    void store(const QString& key, const QVariant& value);

    QHash<QString, QVariant> m_arguments;
    OpenStore m_openStore;
    std::unique_ptr<QSettings> m_store;
    QHash<QString, QVariant> m_registered;
};

} // namespace kestrowind
