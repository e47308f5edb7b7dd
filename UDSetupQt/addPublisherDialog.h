// Registers a network publisher with a host name and a displayed name.
#pragma once

#include "PublisherMgr.h"

#include "ui_addPublisherDialog.h"

#include <QDialog>

/// The result is 1 if the publisher was added. User-interface thread, which blocks while the device is looked
/// up.
class addPublisherDialog : public QDialog, public Ui::addPublisherDialog
{
    Q_OBJECT

public:
    /// Offers a name that no registered publisher has. Prints the registered ones on standard output.
    explicit addPublisherDialog(QDialog* parent);
    /// Adds the publisher and closes the dialog. On failure it shows the reason and stays open if a retry can
    /// succeed.
    Q_SLOT void addPublisher();

protected:
    bool event(QEvent* e) override;

private:
    void connectAll();
    void colourFrames();
    void offerName();
    /// The result of an attempt to add the publisher.
    enum class Addition
    {
        done,
        taken,
        notFound,
        failed
    };
    /// Blocks while it connects to the server.
    Addition add();
    bool isTaken(const CStringArray& ids, const CString& name, const CString& host);

    CPublisherMgr m_cPubMgr;
};
