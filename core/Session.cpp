#include "Session.h"

#include "Texts.h"

Session::Session(const QString &configPath, QObject *parent)
    : QObject(parent), m_configPath(configPath)
{
}

void Session::setIdioma(quint8 idioma)
{
    m_idioma = idioma;
    emit idiomaChanged(idioma);
}

QString Session::Traduz(const QString &key) const
{
    return Texts::Traduz(key, m_idioma);
}

void Session::setConnectionFlag(const QString &flag)
{
    if (flag == m_connectionFlag)
        return;
    m_connectionFlag = flag;
    emit connectionFlagChanged(flag);
    // A link that ends is no longer a validated one.
    if (flag == QLatin1String("0"))
        setConnectionValidated(false);
}

void Session::setConnectionValidated(bool validated)
{
    if (validated == m_connectionValidated)
        return;
    m_connectionValidated = validated;
    emit connectionValidatedChanged(validated);
}

void Session::setModelo(const QString &modelo)
{
    if (modelo == m_modelo)
        return;
    m_modelo = modelo;
    emit modeloChanged(modelo);
}
