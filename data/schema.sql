-- Config.vkt: the working database beside the program.
-- Every column holds text except Master.TIPO, the rail class the rail screens compare as a
-- number. The key and sort columns ignore letter case (COLLATE NOCASE), as the Access file did:
-- "help" finds the recorded "Help", and lists and masks sort as technicians have always seen
-- them. Existing files get the same collation at start-up (Database::upgradeCollation).
-- No table has a primary key: rows are found by their logical keys, which the indexes cover.

-- Console commands offered in the command console, with a help text per language.
CREATE TABLE Comandos (
    Comando TEXT COLLATE NOCASE,
    Info    TEXT,
    Info2   TEXT,
    Info3   TEXT
);
CREATE INDEX Comandos_Comando ON Comandos (Comando);

-- Console answers recorded from known-good boards, one per model and command.
CREATE TABLE Dados (
    Aparelho TEXT COLLATE NOCASE,
    Comando  TEXT COLLATE NOCASE,
    Dados    TEXT,
    Info     TEXT,
    Info2    TEXT,
    Info3    TEXT
);
CREATE INDEX Dados_Aparelho_Comando ON Dados (Aparelho, Comando);

-- Texts masked in console answers before two answers are compared.
CREATE TABLE M (
    String TEXT COLLATE NOCASE
);
CREATE INDEX M_String ON M (String);

-- Rail references per model and net, with the last reading and three recorded ones.
CREATE TABLE Master (
    Modelo  TEXT COLLATE NOCASE,
    Malha   TEXT COLLATE NOCASE,
    Ci      TEXT COLLATE NOCASE,
    TIPO    INTEGER,
    Orig    TEXT COLLATE NOCASE,
    Reft    TEXT,
    refv    TEXT,
    Leitura TEXT,
    Porc    TEXT,
    G1      TEXT,
    G2      TEXT,
    G3      TEXT
);
CREATE INDEX Master_Modelo_Malha ON Master (Modelo, Malha);
CREATE INDEX Master_Modelo_TIPO ON Master (Modelo, TIPO);

-- RF rail reference voltages per model and modem type ("T", "I" or "Q").
CREATE TABLE Rf (
    Modelo     TEXT COLLATE NOCASE,
    Tipo       TEXT COLLATE NOCASE,
    Malha      TEXT COLLATE NOCASE,
    Componente TEXT,
    Referencia TEXT
);
CREATE INDEX Rf_Modelo_Tipo_Malha ON Rf (Modelo, Tipo, Malha);

-- Expected I2C devices per model: bus digit, address, "-", description.
CREATE TABLE i (
    Aparelho TEXT COLLATE NOCASE,
    i        TEXT COLLATE NOCASE
);
CREATE INDEX i_Aparelho_i ON i (Aparelho, i);

-- Regulatory model numbers, framed "AST" + number + "098", and the model name they mean.
CREATE TABLE Modelos (
    Modelo TEXT COLLATE NOCASE,
    Ref    TEXT COLLATE NOCASE
);
CREATE INDEX Modelos_Modelo ON Modelos (Modelo);

-- One row: the model selected when the main window was last closed.
CREATE TABLE Ultimo (
    Modelo TEXT
);

-- One row: the last choices of the rail screens' option lists.
CREATE TABLE Combos (
    Combo1  TEXT,
    Combo2  TEXT,
    Combo3  TEXT,
    Combo4  TEXT,
    Combo5  TEXT,
    Combo6  TEXT,
    Combo7  TEXT,
    Combo8  TEXT,
    Combo9  TEXT,
    Combo10 TEXT
);

-- One row of settings: interface language, the state of the data import, the maker's web
-- addresses (version page asked at start-up, download page, two remote-support pages; an empty
-- version page skips the check) and whether the disclaimer was agreed to ("1").
CREATE TABLE Tools (
    Idioma      TEXT,
    syncbd      TEXT,
    UrlVersao   TEXT,
    UrlDownload TEXT,
    UrlSuporte  TEXT,
    UrlSuporte2 TEXT,
    Termos      TEXT
);

-- Where each reference came from: per model and rail net (Kind "rail", Item = Master.Malha),
-- per model and I2C entry ("i2c", Item = the i text) and per model and recorded command
-- ("dados", Item = Dados.Comando). Source is "demo" (shipped), "learned" (median of recorded
-- boards: how many, their serial numbers where known) or "imported" (File and FileDate of the
-- reference file). At is when the value was made (UTC, ISO 8601; empty for demo data) and
-- Version the program that made it. Value is the reference the origin vouches for: a row whose
-- reference no longer equals it was changed by hand since. Files made before this table get it
-- empty at start-up (Database::addMissingTables): their references have no known origin.
CREATE TABLE RefOrigin (
    Kind     TEXT COLLATE NOCASE,
    Model    TEXT COLLATE NOCASE,
    Item     TEXT COLLATE NOCASE,
    Value    TEXT,
    Source   TEXT,
    Boards   INTEGER,
    Serials  TEXT,
    At       TEXT,
    Version  TEXT,
    File     TEXT,
    FileDate TEXT
);
CREATE INDEX RefOrigin_Kind_Model_Item ON RefOrigin (Kind, Model, Item);

-- The rail references and origins of one model as they were before its last learning, so the
-- learning can be undone exactly. HadOrigin 0: the rail had no origin row.
CREATE TABLE RefUndo (
    Model     TEXT COLLATE NOCASE,
    Malha     TEXT COLLATE NOCASE,
    refv      TEXT,
    HadOrigin INTEGER,
    Value     TEXT,
    Source    TEXT,
    Boards    INTEGER,
    Serials   TEXT,
    At        TEXT,
    Version   TEXT,
    File      TEXT,
    FileDate  TEXT
);
CREATE INDEX RefUndo_Model ON RefUndo (Model);
