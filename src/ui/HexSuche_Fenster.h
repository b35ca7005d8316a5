// The form `HexSuche`: search for bytes in the image.
#pragma once

#include "ui/Such_Formular.h"

class QLabel;
class QRadioButton;

namespace varnholt {

class HexSuche_Fenster : public Such_Formular {
    Q_OBJECT

public:
    explicit HexSuche_Fenster(Befehls_Weg Ausfuehren = {}, QWidget* Eltern = nullptr);

protected:
    bool             Passt() const override;
    std::string_view Text(std::string_view Name) const override;
    void             Felder_Zeigen() override;
    void             Suchen() override;
    void             Enter_Gedrueckt() override;
    void             Abbrechen() override;

private:
    void Anordnen();

    QRadioButton* O_Hex    = nullptr;
    QRadioButton* O_ASCII  = nullptr;
    QLabel*       InfoText = nullptr;
};

} // namespace varnholt
