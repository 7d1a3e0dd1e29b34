// A small explanation form: pictures with a text below each, and a button that closes it.
#pragma once

#include <span>

#include "desktop/kit/form.h"
#include "engine/illustrations/samples.h"

namespace vernacle {

struct Illustration {
    const char* picture;
    Sample sample;
    const char* label;
    const char* text;
};

struct IllustrationTraits {
    const char* form;
    const char* title;
    std::span<const Illustration> illustrations;
    int columns;
    const char* note; // below them; empty for none
    const char* button;
    const char* buttonCaption;
};

class IllustrationForm : public ModalForm {
    Q_OBJECT

protected:
    explicit IllustrationForm(const IllustrationTraits& traits);
};

} // namespace vernacle
