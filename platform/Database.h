#pragma once
// The one door to Config.vkt (and to a previous installation's User.vkt). Each instance is one
// connection to one file, meant to live for one operation. Values always travel as bound
// parameters, so a quote in a command, a model or an answer is just another character; every
// write is one transaction that either happens whole or leaves the file as it was.

#include "DatabaseRecords.h"

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

enum class DatabaseProblem { None, Missing, ReadOnly, Locked, Corrupt, NoSchema };

class Database
{
public:
    enum class Access { ReadWrite, ReadOnly };

    // Opens an existing file; a missing file is never created (isOpen() is then false).
    explicit Database(const QString &path);
    Database(const QString &path, Access access);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    bool isOpen() const;
    QString path() const { return m_path; }
    // Why the last call failed; empty after a success.
    QString lastError() const { return m_lastError; }
    // For views bound to a query; the views must not outlive this object.
    QSqlDatabase connection() const;

    // Start-up check that reads the file and never changes it.
    static DatabaseProblem check(const QString &path, QString *detail = nullptr);
    // The tables and columns a usable file must have.
    static const QList<QPair<QString, QStringList>> &requiredSchema();
    // The key and sort columns that compare and sort without regard to letter case.
    static const QList<QPair<QString, QStringList>> &caseInsensitiveColumns();
    // Gives the columns above their case-insensitive collation in a file made before they had
    // it, keeping every row, rowid and index; a file that has it already is not written. One
    // transaction: on failure the file stays as it was and `error` says why.
    static bool upgradeCollation(const QString &path, QString *error = nullptr);

    // `text` with LIKE's wildcards escaped, for patterns written with "ESCAPE '\\'".
    static QString escapeLike(const QString &text);

    // Differs from the last value whenever the file may have changed since, by this connection
    // or any other; lets a reader keep what it read until then (the masks of M, read at every
    // answer otherwise).
    quint64 dataVersion();

    // --- Comandos ------------------------------------------------------------------------
    QList<ComandoRecord> comandos();                 // ordered by Comando
    QSqlQuery comandosQuery();                       // same, for a bound view
    std::optional<ComandoRecord> comando(const QString &comando);
    QSqlQuery comandoQuery(const QString &comando);  // the command's row, for a bound view
    bool comandoExists(const QString &comando);
    bool addComando(const ComandoRecord &record);
    bool addComando(const QString &comando) { return addComando(ComandoRecord{comando, {}, {}, {}}); }
    bool updateComandoInfo(const ComandoRecord &record); // Info..Info3 of the command's row
    bool deleteComando(const QString &comando);

    // --- Dados ---------------------------------------------------------------------------
    std::optional<DadosRecord> dadosRecord(const QString &aparelho, const QString &comando);
    QSqlQuery dadosQuery(const QString &aparelho, const QString &comando); // for a bound view
    QList<DadosRecord> allDados();
    bool addDados(const DadosRecord &record);
    // Overwrites Dados and Info..Info3 of the (Aparelho, Comando) row.
    bool updateDados(const DadosRecord &record);
    // Adds the row, or overwrites it when the pair is already recorded (the import).
    bool saveDados(const DadosRecord &record);
    bool deleteDados(const QString &aparelho, const QString &comando);

    // --- M -------------------------------------------------------------------------------
    QStringList maskTexts(); // descending text order: a longer text before its own beginning
    bool addMaskText(const QString &text);

    // --- Master --------------------------------------------------------------------------
    QList<MasterRow> masterRows(const MasterFilter &filter);
    QSqlQuery masterQuery(const MasterFilter &filter); // for the rail grids
    // The NAND screen's rows: the model's nets whose Ci contains "NAND", by Malha.
    QList<MasterRow> nandRows(const QString &modelo);
    static MasterFilter nandFilter(const QString &modelo);
    std::optional<MasterRow> masterRow(const QString &modelo, const QString &malha);
    bool clearReadings(); // empties Leitura and Porc of every row
    bool writeReadings(const QList<RailReading> &readings); // all of one reading, one transaction
    // Recorded slots 1..3 (G1..G3): copy Leitura into the slot, or empty it.
    bool recordReadings(int slot, const QList<MasterKey> &rows);
    bool recordReadings(int slot, const MasterFilter &rows);
    bool clearRecordings(int slot, const QList<MasterKey> &rows);
    bool clearRecordings(int slot, const MasterFilter &rows);
    // The import: G1..G3 of the row, when it exists (nothing is written otherwise).
    bool setRecordings(const MasterKey &row, const QString &g1, const QString &g2, const QString &g3);

    // --- Rf, i, Modelos -------------------------------------------------------------------
    QList<RfRow> rf(const QString &modelo, const QString &tipo); // ordered by Modelo, Malha
    QSqlQuery rfQuery(const QString &modelo, const QString &tipo);
    QStringList i2cTexts(const QString &aparelho, const QString &text);       // i like '%text%'
    QStringList i2cTextsStartingWith(const QString &aparelho, const QString &prefix); // 'text%'
    // The model name of a regulatory model number as the device reports it ("A1660" -> "IP 7").
    std::optional<QString> modeloRef(const QString &modelNumber);

    // --- Ultimo, Combos, Tools ------------------------------------------------------------
    std::optional<QString> ultimoModelo();
    bool setUltimoModelo(const QString &modelo); // adds the row when empty, else edits the first
    std::optional<QString> combo(int n);          // Combo1..Combo10
    bool setCombo(int n, const QString &value);
    std::optional<QStringList> combos();          // all ten, for the import
    bool setCombos(const QStringList &values);
    std::optional<quint8> idioma();
    bool setIdioma(quint8 idioma);
    std::optional<QString> syncbd();
    bool setSyncbd(const QString &state);

    // --- Tools: addresses and the disclaimer --------------------------------------------------
    // Columns added after the first release; an older file gets them (empty) at start-up.
    static const QStringList &toolsTextColumns();
    bool addMissingToolsColumns();
    // A text column of Tools (one of toolsTextColumns()); the empty text when unset.
    std::optional<QString> toolsText(const QString &column);
    bool setToolsText(const QString &column, const QString &value);

    // --- Reference origins, the undo of a learning, whole lists for the reference files ----
    // Creates the tables of the schema a file made before them lacks (with their indexes),
    // empty; a file that has them all is not written.
    bool addMissingTables();
    QList<RefOrigin> refOrigins(const QString &kind, const QString &model); // by Item
    std::optional<RefOrigin> refOrigin(const QString &kind, const QString &model, const QString &item);
    // Replaces the (Kind, Model, Item) row in place, or adds it.
    bool setRefOrigin(const RefOrigin &origin);
    bool deleteRefOrigin(const QString &kind, const QString &model, const QString &item);
    bool setRefv(const MasterKey &row, const QString &refv);
    bool addMasterRow(const MasterRow &row);
    QList<RefUndoRow> refUndo(const QString &model);
    bool setRefUndo(const QString &model, const QList<RefUndoRow> &rows); // replaces the model's
    QStringList i2cEntries(const QString &aparelho);                      // in stored order
    bool replaceI2cEntries(const QString &aparelho, const QStringList &entries);
    QList<DadosRecord> dadosOf(const QString &aparelho);                   // by Comando
    // The model names the file knows (Modelos.Ref), in name order.
    QStringList knownModels();
    // Models that have rail references (Master), in name order.
    QStringList railModels();

    // Runs `work` as one transaction: either all of its writes land or none. Writes made through
    // this object inside `work` join it instead of committing on their own.
    bool transaction(const std::function<bool()> &work) { return inTransaction(work); }

private:
    QSqlQuery prepare(const QString &sql, const QVariantList &values = {});
    bool exec(QSqlQuery &query);
    bool execute(const QString &sql, const QVariantList &values = {});
    // Runs `work` in one transaction; any failure rolls everything back.
    bool inTransaction(const std::function<bool()> &work);
    bool ready();
    void fail(const QString &reason) { m_lastError = reason; }
    QString firstRowValue(const QString &sql, bool *found);
    std::optional<QString> firstRowText(const QString &sql);
    QStringList firstColumn(const QString &sql, const QVariantList &values = {});
    // Copies `source` (a column or a literal) into recorded slot G1..G3 of the given rows.
    bool fillSlot(int slot, const QString &source, const QList<MasterKey> &rows);
    bool fillSlot(int slot, const QString &source, const MasterFilter &rows);
    bool setSingleRowColumn(const QString &table, const QString &column, const QString &value);

    QString m_path;
    QString m_connectionName;
    QString m_lastError;
    quint64 m_commits = 0; // this connection's own commits
    int m_transactionDepth = 0;
};
