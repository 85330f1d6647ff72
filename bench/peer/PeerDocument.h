#pragma once

#include <Standard_GUID.hxx>
#include <TColStd_HArray1OfReal.hxx>
#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <array>

namespace peer {

/// A document of OCAF, the document framework of Open CASCADE, in memory: what the house is measured beside.
/// A feature is a label, an attribute of a feature is an attribute of the label under a GUID of its own, a
/// step is a command. Its history is kept until it is forgotten.
class Document {
public:
    Document();
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    TDF_Label NewFeature() const { return document_->Main().NewChild(); }

    /// Runs `work` as one command.
    template <class Work>
    void Step(Work work) {
        document_->OpenCommand();
        work();
        document_->CommitCommand();
    }
    void Undo() { document_->Undo(); }
    void Redo() { document_->Redo(); }
    void ForgetSteps();

    /// Writes the document in the framework's binary format. Throws when it cannot.
    void Save(const char* path) const;

    /// Reads such a file as a further document and closes it again. Throws when it cannot.
    static void Open(const char* path);

private:
    Handle(TDocStd_Document) document_;
};

/// The GUID of the i-th attribute: the same in every document.
Standard_GUID Key(int i);

/// Those of six numbers on one label.
using ScalarKeys = std::array<Standard_GUID, 6>;
ScalarKeys SixKeys();

/// Those of the three columns of a table.
using ColumnKeys = std::array<Standard_GUID, 3>;
ColumnKeys ThreeKeys();

/// Six numbers on a new label.
TDF_Label NewScalars(const Document& document);

/// Writes a column: a fresh array put in place of the stored one, without a comparison of the two.
void WriteColumn(const TDF_Label& feature, const Standard_GUID& key,
                 const opencascade::handle<TColStd_HArray1OfReal>& column);

}  // namespace peer
