// A translator that shows which entry of the catalogue a text comes from: "context|source".
#pragma once

#include <QTranslator>

class EntryTranslator : public QTranslator
{
public:
    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QString::fromLatin1(context) + '|' + QString::fromLatin1(source);
    }
};
