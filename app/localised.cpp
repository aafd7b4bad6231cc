#include "app/localised.h"

#include "app/plain_text.h"
#include "model/krtool.h"

QString localised(const char* key) {
    return one_line(j.with.texts.text(key));
}
