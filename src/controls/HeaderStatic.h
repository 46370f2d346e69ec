#pragma once

// The bar above the page area of the configuration dialog: the page's title
// in bold white on the colour of shadowed buttons (the palette's Dark role).

#include <QString>
#include <QWidget>

class CHeaderStatic : public QWidget {
    Q_OBJECT

public:
    explicit CHeaderStatic(QWidget* parent = nullptr);

    static constexpr int kTextIndent = 5;

    // Stores the text and repaints at once.
    void SetText(const QString& text);
    QString Text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};
