#include "automation/qplan/plan_transformation.h"

#include "automation/shared/library_values.h"

PlanTransformation::PlanTransformation(_CTrans& trans) : trans_(&trans), host_(trans) {
    if (const auto value = ValueOf<ITransformValue>(trans)) {
        double scale = 1;
        LONG offsetX = 0;
        LONG offsetY = 0;
        value->Get(&scale, &offsetX, &offsetY);
        plain_.emplace();
        plain_->SetScale(scale);
        plain_->SetOffsetX(offsetX);
        plain_->SetOffsetY(offsetY);
    }
}

void PlanTransformation::WorldToScreen(qmath::Point& point) const {
    if (plain_)
        point = plain_->WorldToScreen(point);
    else
        host_.WorldToScreen(point);
}

void PlanTransformation::PointsToScreen(std::span<qmath::Point> points) const {
    if (plain_)
        plain_->WorldToScreen(points);
    else
        host_.PointsToScreen(points);
}

void PlanTransformation::ScreenToWorld(qmath::Point& point) const {
    if (plain_)
        point = plain_->ScreenToWorld(point);
    else
        host_.ScreenToWorld(point);
}

std::int32_t PlanTransformation::LengthToScreen(std::int32_t length) const {
    return plain_ ? plain_->LengthToScreen(length) : host_.LengthToScreen(length);
}

std::int32_t PlanTransformation::FontSizeToScreen(double factor, std::int16_t size) const {
    return plain_ ? plain_->FontSizeToScreen(factor, size) : host_.FontSizeToScreen(factor, size);
}
