// Registers a network publisher under a host name and a name to show.
#pragma once

#include "PublisherMgr.h"

#include "ui_addPublisherDialog.h"

#include <QDialog>

/// Its result is 1 when the publisher was added. User-interface thread, which stands still while the device
/// is looked for.
class addPublisherDialog : public QDialog, public Ui::addPublisherDialog
{
    Q_OBJECT

public:
    /// Offers a name that no registered publisher has. Lists the registered ones on the standard output.
    explicit addPublisherDialog(QDialog* parent);
    /// Adds the publisher and closes. When it cannot, says why; the dialog then stays, unless trying again is
    /// of no use.
    Q_SLOT void addPublisher();

protected:
    bool event(QEvent* e) override;

private:
    void connectAll();
    void colourFrames();
    void offerName();
    /// What became of a try to add the publisher.
    enum class Addition
    {
        done,
        taken,
        notFound,
        failed
    };
    /// Blocks while the server is looked for.
    Addition add();
    bool isTaken(const CStringArray& ids, const CString& name, const CString& host);

    CPublisherMgr m_cPubMgr;
};
