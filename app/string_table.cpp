#include "app/string_table.h"

#include <QCoreApplication>

std::string string_table::text(std::string_view key) const {
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::string(key) : found->second;
}

void string_table::load(const std::function<std::string(std::string_view key)>& translate) {
    for (const std::span<const std::string_view> keys : {designed_keys(), window_keys()}) {
        for (const std::string_view key : keys) {
            texts_[std::string(key)] = translate(key);
        }
    }
}

namespace {

// The table for a language as BCP 47 writes it; empty: there is none.
QString table_for(const QString& wish) {
    const QStringList parts = wish.split(QLatin1Char('-'));
    const QString& language = parts.front();
    if (language == QLatin1String("zh")) {
        // The script counts more than the territory.
        const bool is_traditional =
            parts.contains(QLatin1String("Hant")) ||
            (!parts.contains(QLatin1String("Hans")) &&
             (parts.contains(QLatin1String("TW")) || parts.contains(QLatin1String("HK")) ||
              parts.contains(QLatin1String("MO"))));
        return is_traditional ? QStringLiteral("zh_TW") : QStringLiteral("zh_CN");
    }
    return our_languages().contains(language) ? language : QString();
}

} // namespace

QStringList our_languages() {
    return {QStringLiteral("en"), QStringLiteral("de"),    QStringLiteral("fr"),
            QStringLiteral("es"), QStringLiteral("it"),    QStringLiteral("ja"),
            QStringLiteral("ko"), QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
}

QString language_for(const QStringList& preferred) {
    for (const QString& wish : preferred) {
        if (QString table = table_for(wish); !table.isEmpty()) {
            return table;
        }
    }
    return QStringLiteral("en");
}

bool install_language(QTranslator& translator, const QString& language) {
    return translator.load(QStringLiteral(":/i18n/kestrelraid_%1.qm").arg(language)) &&
           QCoreApplication::installTranslator(&translator);
}

std::string translated(std::string_view key) {
    return qtTrId(std::string(key).c_str()).toStdString();
}
