// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// ITK's watershed from markers on a scene of benchmarks/compare_python.py:
//
//     itk_times FOLDER WIDTH HEIGHT

#include "benchmarks/RawScene.h"

#include <itkImage.h>
#include <itkImportImageFilter.h>
#include <itkMorphologicalWatershedFromMarkersImageFilter.h>
#include <itkMultiThreaderBase.h>

namespace {

template <typename T>
typename itk::ImportImageFilter<T, 2>::Pointer imported(const std::vector<T> &values, const RawScene &scene)
{
    auto import = itk::ImportImageFilter<T, 2>::New();
    itk::Size<2> size{};
    size[0] = static_cast<itk::SizeValueType>(scene.width);
    size[1] = static_cast<itk::SizeValueType>(scene.height);
    import->SetRegion(itk::ImageRegion<2>(size));
    import->SetImportPointer(const_cast<T *>(values.data()), values.size(), false);
    import->Update();
    return import;
}

} // namespace

int main(int argc, char **argv)
{
    itk::MultiThreaderBase::SetGlobalMaximumNumberOfThreads(1);
    const RawScene scene = readScene(argc, argv);
    const auto edges = imported<std::uint8_t>(scene.edges, scene);
    const auto markers = imported<std::int32_t>(scene.markers, scene);
    printTime("itk", [&] {
        using Filter = itk::MorphologicalWatershedFromMarkersImageFilter<itk::Image<std::uint8_t, 2>,
                                                                         itk::Image<std::int32_t, 2>>;
        const auto filter = Filter::New();
        filter->SetInput1(edges->GetOutput());
        filter->SetInput2(markers->GetOutput());
        filter->MarkWatershedLineOn();
        filter->FullyConnectedOff();
        filter->Update();
    });
    return 0;
}
