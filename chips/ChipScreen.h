#pragma once
// What the four chip screens share: one command per reading, the answer handed over into
// txtDados, the engine's result painted onto labels named after the result controls, the log
// panel and the recorded-answers grid. The screens differ only in their chip's table and a few
// controls of their own, which they add through the hooks below.

#include "ChipEngine.h"
#include "TestScreen.h"

#include <QMap>
#include <memory>

class Database;
class QGridLayout;
class QHBoxLayout;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSqlQueryModel;
class QTableView;
class QVBoxLayout;

class ChipScreen : public TestScreen
{
    Q_OBJECT
public:
    // Verdict colours as the program writes them (BGR colour texts).
    static inline const QString Green = QStringLiteral("&H00C0FFC0");
    static inline const QString Yellow = QStringLiteral("&H0080FFFF");
    static inline const QString White = QStringLiteral("&H00FFFFFF");
    static inline const QString TextGreen = QStringLiteral("&H0000C000");
    static inline const QString TextBlack = QStringLiteral("&H00000000");

    ChipScreen(const ScreenContext &context, Chip chip, QWidget *parent = nullptr);
    ~ChipScreen() override;

    Chip chip() const { return m_chip; }
    void retranslate() override;

    // The read button's action.
    void ExecutaLeitura();
    // Parses txtDados and paints the result; the main window calls it when the answer is in.
    void CarregaDados();
    // What the main window does with a finished answer for this screen.
    void handOver(const QString &answer);

    // The last parsed result (empty before the first answer).
    const ChipResult &result() const { return m_result; }
    QSqlQueryModel *Data1() const { return m_data1; }
    bool logShown() const { return m_logShown; }
    void toggleLog();

    // Colour texts of a label, as painted; White for a label never painted.
    static QString backColor(const QWidget *label);
    static QString foreColor(const QWidget *label);

protected:
    // Builds the rows, buttons, grid and log panel, then reads when the phone is idle. Each
    // screen calls it at the end of its constructor, once the hooks below can run.
    void setUp();
    bool refusesModel() const;

    // Called once the common controls exist and before the first translation.
    virtual void addControls() {}
    // Shows, hides and names what depends on the selected model.
    virtual void layoutForModel() {}
    // Refuses to read on this model: shows why and returns true.
    virtual bool refuse() { return false; }
    virtual void resetExtra() {}
    virtual void paintExtra(const ChipResult &) {}
    virtual void retranslateExtra() {}
    // The grid a row's controls go into; the main one unless a screen groups rows.
    virtual QGridLayout *gridFor(const ChipRow &row);

    void resetScreen();
    QLabel *label(const QString &objectName) const { return m_labels.value(objectName); }
    // A label the painter may address by its control name.
    QLabel *addLabel(const QString &objectName, QWidget *parent = nullptr);
    // Gives a built label the name a screen knows it by.
    QLabel *renameLabel(const QString &from, const QString &to);
    static void paint(QWidget *label, const QString &colourText);
    static void paintText(QWidget *label, const QString &colourText);

    QVBoxLayout *mainColumn() const { return m_column; }
    QGridLayout *mainGrid() const { return m_grid; }
    QPushButton *readButton() const { return m_btExecutaLeitura; }
    QHBoxLayout *buttonRow() const { return m_buttons; }
    QPlainTextEdit *txtDados() const { return m_txtDados; }
    const ChipDefinition &definition() const { return ChipTables::definition(m_chip); }

private:
    void buildRows();
    void paintResult(const ChipResult &result);
    void pointComparator(const QString &model, const QString &command);

    Chip m_chip;
    ChipResult m_result;
    QMap<QString, QLabel *> m_labels;
    QVBoxLayout *m_column = nullptr;
    QGridLayout *m_grid = nullptr;
    QHBoxLayout *m_buttons = nullptr;
    QPushButton *m_btExecutaLeitura = nullptr;
    QPushButton *m_btLog = nullptr;
    QLabel *m_lbUC = nullptr;
    QLabel *m_lbLeitura = nullptr;
    QWidget *m_logPanel = nullptr;
    QPlainTextEdit *m_txtDados = nullptr;
    QGroupBox *m_comparatorBox = nullptr;
    QTableView *m_grid1 = nullptr;
    QSqlQueryModel *m_data1 = nullptr;
    std::unique_ptr<Database> m_db;
    bool m_logShown = false;
};
