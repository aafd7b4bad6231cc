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

QString language_for(const QStringList& preferred) {
    const QStringList ours = {QStringLiteral("en"), QStringLiteral("de")};
    for (const QString& wish : preferred) {
        QString language = wish.section(QLatin1Char('-'), 0, 0);
        if (ours.contains(language)) {
            return language;
        }
    }
    return ours.front();
}

bool install_language(QTranslator& translator, const QString& language) {
    return translator.load(QStringLiteral(":/i18n/kestrelraid_%1.qm").arg(language)) &&
           QCoreApplication::installTranslator(&translator);
}

std::string translated(std::string_view key) {
    return qtTrId(std::string(key).c_str()).toStdString();
}
