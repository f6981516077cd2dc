#pragma once
// Plain rows of Config.vkt as the engines and screens use them. Every field is text as stored,
// except the rail class; an absent (NULL) value reads as the empty text.

#include <QList>
#include <QString>
#include <optional>

// A console command with its help text per language (table Comandos).
struct ComandoRecord
{
    QString comando;
    QString info;
    QString info2;
    QString info3;
    bool operator==(const ComandoRecord &) const = default;
};

// A console answer recorded from a known-good board (table Dados).
struct DadosRecord
{
    QString aparelho;
    QString comando;
    QString dados;
    QString info;
    QString info2;
    QString info3;
    bool operator==(const DadosRecord &) const = default;
};

// One rail reference of one model (table Master).
struct MasterRow
{
    QString modelo;
    QString malha;
    QString ci;
    int tipo = 0;
    QString orig;
    QString reft;
    QString refv;
    QString leitura;
    QString porc;
    QString g1;
    QString g2;
    QString g3;
    bool operator==(const MasterRow &) const = default;
};

// The logical key of a Master row.
struct MasterKey
{
    QString modelo;
    QString malha;
    bool operator==(const MasterKey &) const = default;
};

// What one rail reading writes into its Master row.
struct RailReading
{
    QString modelo;
    QString malha;
    QString leitura;
    QString porc;
};

// Which Master rows a rail screen, the NAND screen or the import looks at, and in which order.
// Unset members do not filter.
struct MasterFilter
{
    enum class Order {
        None,
        ModeloMalha, // "order by Modelo, Malha"
        ModeloOrig,  // "order by Modelo, Orig"
        Malha,       // "order by Malha"
        Orig,        // "order by Orig"
        CiMalha,     // "order by CI, Malha"
        CiOrig,      // "order by CI, Orig"
        PorcDesc,    // "order by Porc desc", as text
    };

    std::optional<QString> modelo;
    std::optional<int> tipo;
    std::optional<QString> ciContains; // Ci like '%text%'
    bool withReftOnly = false;         // Reft <> ''
    Order order = Order::None;
};

// An RF rail reference voltage (table Rf).
struct RfRow
{
    QString modelo;
    QString tipo;
    QString malha;
    QString componente;
    QString referencia;
    bool operator==(const RfRow &) const = default;
};

// Where one reference came from (table RefOrigin). `value` is the reference it vouches for.
struct RefOrigin
{
    QString kind;   // "rail", "i2c", "dados"
    QString model;
    QString item;   // Master.Malha, the i text or Dados.Comando
    QString value;
    QString source; // "demo", "learned", "imported"
    int boards = 0;
    QString serials;
    QString at;     // UTC, ISO 8601; empty for demo data
    QString version;
    QString file;
    QString fileDate;
    bool operator==(const RefOrigin &) const = default;
};

// One rail as it stood before a learning (table RefUndo).
struct RefUndoRow
{
    QString malha;
    QString refv;
    std::optional<RefOrigin> origin;
    bool operator==(const RefUndoRow &) const = default;
};
