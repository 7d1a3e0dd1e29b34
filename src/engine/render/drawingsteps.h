// The changes of a design that are due while it is drawn. The drawing itself only reads: at each of
// these moments it asks whoever owns the design for the step, and a failure leaves out those that
// would have come.
#pragma once

namespace vernacle {

struct DesignRecord;

class DrawingSteps {
public:
    virtual ~DrawingSteps() = default;

    // The plate is known to have a size: an AspectRatio of 0 or less becomes 1.
    virtual void RaiseAspect() const = 0;

    // A pass over the scales comes to a scale, or to the number behind its last: CurrentScale
    // follows.
    virtual void ReachScale(int scale) const = 0;

    // Before a scale's tics, and again before its labels: a RelativeFontSize of 0 or less
    // becomes 1.
    virtual void RaiseRelativeSize(int scale) const = 0;

    // Before a scale's labels, where flags are set back: ScaleColor becomes 0, and with that a
    // special scale a standard one.
    virtual void ClearColour(int scale) const = 0;

    // Before a label's flag is asked for, where flags are set back: it becomes "Y".
    virtual void SetBackLabel(int scale, int tic) const = 0;
};

// Takes them on a design.
class StepsOn : public DrawingSteps {
public:
    explicit StepsOn(DesignRecord& design) : design_(design) {}

    void RaiseAspect() const override;
    void ReachScale(int scale) const override;
    void RaiseRelativeSize(int scale) const override;
    void ClearColour(int scale) const override;
    void SetBackLabel(int scale, int tic) const override;

private:
    DesignRecord& design_;
};

// An AspectRatio of 0 or less becomes 1.
void RaiseAspectRatio(DesignRecord& design);

} // namespace vernacle
