// The form `Hilfe`: shows the help text of editors/Hilfe.h. Closed by the user it is hidden. It
// keeps its place, also to the next run.
#pragma once

#include <QTextEdit>
#include <QWidget>

namespace varnholt {

class Hilfe_Fenster : public QWidget {
    Q_OBJECT

public:
    explicit Hilfe_Fenster(QWidget* Eltern = nullptr);
    // The load of the form: text and caption in the language of the interface.
    void Laden();

protected:
    void changeEvent(QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void moveEvent(QMoveEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;

private:
    void Platz_Nehmen();
    void Platz_Merken() const;
    void Text_Zeigen();

    QTextEdit* Text;
};

} // namespace varnholt
