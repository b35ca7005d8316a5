// The form `Suche`: search and replace in the source text.
#pragma once

#include "ui/Such_Formular.h"

class QCheckBox;

namespace varnholt {

class Suche_Fenster : public Such_Formular {
    Q_OBJECT

public:
    explicit Suche_Fenster(Befehls_Weg Ausfuehren = {}, QWidget* Eltern = nullptr);

protected:
    bool             eventFilter(QObject* Feld, QEvent* Ereignis) override;
    bool             Passt() const override;
    std::string_view Text(std::string_view Name) const override;
    void             Felder_Zeigen() override;
    void             Suchen() override;
    void             Enter_Gedrueckt() override;
    void             Abbrechen() override;

private:
    void Anordnen();
    void Verbinden();
    void Ersetzen_Zeigen();

    QCheckBox*   Check1         = nullptr;
    QCheckBox*   Check2         = nullptr;
    QCheckBox*   Check3         = nullptr;
    QLineEdit*   Ersetzen_durch = nullptr;
    QPushButton* B_Ersetzen     = nullptr;
    QPushButton* B_AlleErsetzen = nullptr;
};

} // namespace varnholt
