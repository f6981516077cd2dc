#pragma once
// The reference voltages of the RF rails of one model, for the technician measuring a board by
// hand after a radio failed. The grid is bound to table Rf; later models carry one of two
// modems, chosen with Botao1/Botao2, while the IP 6 and 6s families have a single list.

#include "TestScreen.h"

#include <memory>

class Database;
class QSqlQueryModel;

namespace Ui { class RFs_Esq; }

class RFs_Esq : public TestScreen
{
    Q_OBJECT
public:
    explicit RFs_Esq(const ScreenContext &context, QWidget *parent = nullptr);
    ~RFs_Esq() override;

    void retranslate() override;

    // Points the grid at the RF rows of model `modelo` and the current modem choice.
    void CarregaReferenciasRF(const QString &modelo);
    // Botao1 (1) and Botao2 (2): the modem variant, then a reload.
    void escolheBaseband(int escolha);

    int escolha() const { return m_escolha; }
    QString tipo() const { return m_tipo; }
    QSqlQueryModel *Data1() const { return m_data1; }

private:
    void storeFailed();

    std::unique_ptr<Ui::RFs_Esq> ui;
    std::unique_ptr<Database> m_db; // the bound grid keeps its connection while the screen lives
    QSqlQueryModel *m_data1 = nullptr;
    int m_escolha = 1;
    QString m_tipo;
};
