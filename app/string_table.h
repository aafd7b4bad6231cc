// The localised texts.
#pragma once

#include <QStringList>
#include <QTranslator>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "model/services.h"

// The keys of the texts that the model and the status display ask for.
std::span<const std::string_view> designed_keys();
// The keys of what else stands in the window.
std::span<const std::string_view> window_keys();

// Holds every text by its key. Filled once, before other threads ask; unchanged from then on, so
// that any thread may look up.
class string_table final : public text_lookup {
public:
    // Asks `translate` for every known key. Interface thread, at start.
    void load(const std::function<std::string(std::string_view key)>& translate);
    // UTF-8; a key without a text yields the key itself.
    std::string text(std::string_view key) const override;

private:
    std::map<std::string, std::string, std::less<>> texts_;
};

// The languages that there are texts in, English first; Chinese by territory.
QStringList our_languages();

// The language of ours that suits the user's preferred ones, best first; English when none does.
QString language_for(const QStringList& preferred);

// Puts the texts of that language in the application's translator. False: there are none.
bool install_language(QTranslator& translator, const QString& language);

// The installed translation of a key, UTF-8; the key itself when it has none. Interface thread.
std::string translated(std::string_view key);
