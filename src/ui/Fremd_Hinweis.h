// The bar above the child windows that tells that another program changed the document's file.
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace varnholt {

class Fremd_Hinweis : public QFrame {
    Q_OBJECT

public:
    explicit Fremd_Hinweis(QWidget* Eltern = nullptr);
    void Zeigen(const QString& Datei); // in the interface language

signals:
    void Neu_Laden();
    void Behalten();

private:
    QLabel*      Text           = nullptr;
    QPushButton* Laden          = nullptr;
    QPushButton* Behalten_Knopf = nullptr;
};

} // namespace varnholt
