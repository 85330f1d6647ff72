#pragma once

#include "zelmat/commands/reports/ChangeReport.h"

namespace zelmat {

class Arguments;

/// The frame of a command that changes one material of a document, in one step: `DOC MATERIAL`, and what the
/// command itself takes.
class MaterialChange : public Command {
public:
    void Declare(Arguments& line) final;
    void Work(CommandContext& context) final;
    void Print(std::ostream& out) const override;
    nlohmann::ordered_json Json() const override;

protected:
    virtual void DeclareFurther(Arguments& line) = 0;

    /// What the step is called.
    virtual std::string StepName(const DocumentMaterial& material) const = 0;

    /// Inside the step. False, and findings, when it is not to be: then nothing has changed.
    [[nodiscard]] virtual bool Change(KORMemoryDocument& document, const DocumentMaterial& material,
                                      Findings& findings) = 0;

    const std::string& Path() const { return document_; }

    /// Name of the material, as it was; empty unless the change was saved.
    const std::string& Changed() const { return changed_; }

private:
    std::string document_;
    std::string wanted_;
    std::string changed_;
    std::optional<SavedChange> change_;
};

}  // namespace zelmat
