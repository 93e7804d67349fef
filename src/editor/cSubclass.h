// The event pipeline of one document: the only place where the edit control speaks to the engine.
#pragma once

#include "editor/Pipeline.h"

#include <string>
#include <vector>

class frmDoc;
struct PipelineState;

class cSubclass : public Pipeline {
public:
    explicit cSubclass(frmDoc& document) : mFrmDoc(document) {}

    // Runs one notification as if its document were the active one, and restores what was active.
    void OnNotify(const SciNotification& notification) override;
    void OnSetFocus() override;
    void OnKillFocus() override;
    void OnDropFiles(const std::vector<std::string>& paths) override;
    bool OnBeyondCodePage(const std::string& character) override;
    void OnHistoryCodePage(bool utf8) override;

    void DeactivateCheck() override;
    void ParseNow() override;
    void ChangeMany(const std::function<void()>& change) override;
    void RestyleNow() override;
    void ParseAnew(const std::function<void()>& change) override;

private:
    void Dispatch(const SciNotification& notification);
    void StyleNeeded();
    void ColorVisible(int first, int last);
    void SiblingPass();
    void Painted();
    void MarginClick(const SciNotification& notification);
    void Modified(const SciNotification& notification);
    void FollowLines(const SciNotification& notification);
    void BeforeDelete(const SciNotification& notification, int start, int end);
    void TakeBackBeforeDelete(const SciNotification& notification, int start, int end);
    void RememberFirstDeleted(int start, int end);
    void ForgetDeleted(int first, int last);
    void BeforeInsert(const SciNotification& notification, int start, int end);
    void AfterInsert(const SciNotification& notification);
    void UpdateUi();

    void ParseWhole(const std::function<void()>& change);
    PipelineState& State();
    void Snapshot(int line);
    void Queue(int line);
    void TakeBackEditedLine(bool queue);
    void GroupTyping(const SciNotification& notification);
    std::vector<int> TakeQueue();
    void ParseQueue();
    bool ParseEdited();
    void ParseWaiting();
    void JoinLines();
    void LeaveCurrentLook();
    void ShowLine(int line);
    void BeforeParting(const SciNotification& notification, int start, int end);
    void AfterParting(const SciNotification& notification);
    void OpenFolds(int first, int last);

    frmDoc& mFrmDoc;
    bool background_ = false; // another document is active, and the window's displays belong to it
    bool crCame_ = false;     // into a document whose file had only LF
    bool parsing_ = false;    // the scope that the colourers write belongs to the parser
    int partedFrom_ = -1;     // the first line of a change that takes a CR LF apart or puts one together
    // All lines that wait lie between these two.
    int queuedFrom_ = 0;
    int queuedTo_ = -1;
};
