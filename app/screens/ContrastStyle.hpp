#pragma once
// The desktop's style with the box of check boxes and radio buttons outlined in the text colour.
// Fusion outlines them in a shade of the window colour, which on a dark palette all but
// disappears: an unticked box must still be seen to be ticked.

#include <QProxyStyle>

namespace vantello::app {

class ContrastStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
};

}  // namespace vantello::app
