// SPDX-License-Identifier: MIT
// Asks for each extension and resolves what is there.
// Made by tools/generate_glext.py from OpenGL headers of 20220530; don't edit.
// clang-format off

#include "glext/glextloader.h"

void init_supported_extensions() {
    if (isExtensionSupported("GL_3DFX_multisample")) {
        is_GL_3DFX_multisample_supported = 1;
        init_GL_3DFX_multisample();
    }
    if (isExtensionSupported("GL_3DFX_tbuffer")) {
        is_GL_3DFX_tbuffer_supported = 1;
        init_GL_3DFX_tbuffer();
    }
    if (isExtensionSupported("GL_3DFX_texture_compression_FXT1")) {
        is_GL_3DFX_texture_compression_FXT1_supported = 1;
        init_GL_3DFX_texture_compression_FXT1();
    }
    if (isExtensionSupported("GL_AMD_blend_minmax_factor")) {
        is_GL_AMD_blend_minmax_factor_supported = 1;
        init_GL_AMD_blend_minmax_factor();
    }
    if (isExtensionSupported("GL_AMD_conservative_depth")) {
        is_GL_AMD_conservative_depth_supported = 1;
        init_GL_AMD_conservative_depth();
    }
    if (isExtensionSupported("GL_AMD_debug_output")) {
        is_GL_AMD_debug_output_supported = 1;
        init_GL_AMD_debug_output();
    }
    if (isExtensionSupported("GL_AMD_depth_clamp_separate")) {
        is_GL_AMD_depth_clamp_separate_supported = 1;
        init_GL_AMD_depth_clamp_separate();
    }
    if (isExtensionSupported("GL_AMD_draw_buffers_blend")) {
        is_GL_AMD_draw_buffers_blend_supported = 1;
        init_GL_AMD_draw_buffers_blend();
    }
    if (isExtensionSupported("GL_AMD_framebuffer_multisample_advanced")) {
        is_GL_AMD_framebuffer_multisample_advanced_supported = 1;
        init_GL_AMD_framebuffer_multisample_advanced();
    }
    if (isExtensionSupported("GL_AMD_framebuffer_sample_positions")) {
        is_GL_AMD_framebuffer_sample_positions_supported = 1;
        init_GL_AMD_framebuffer_sample_positions();
    }
    if (isExtensionSupported("GL_AMD_gcn_shader")) {
        is_GL_AMD_gcn_shader_supported = 1;
        init_GL_AMD_gcn_shader();
    }
    if (isExtensionSupported("GL_AMD_gpu_shader_half_float")) {
        is_GL_AMD_gpu_shader_half_float_supported = 1;
        init_GL_AMD_gpu_shader_half_float();
    }
    if (isExtensionSupported("GL_AMD_gpu_shader_int16")) {
        is_GL_AMD_gpu_shader_int16_supported = 1;
        init_GL_AMD_gpu_shader_int16();
    }
    if (isExtensionSupported("GL_AMD_gpu_shader_int64")) {
        is_GL_AMD_gpu_shader_int64_supported = 1;
        init_GL_AMD_gpu_shader_int64();
    }
    if (isExtensionSupported("GL_AMD_interleaved_elements")) {
        is_GL_AMD_interleaved_elements_supported = 1;
        init_GL_AMD_interleaved_elements();
    }
    if (isExtensionSupported("GL_AMD_multi_draw_indirect")) {
        is_GL_AMD_multi_draw_indirect_supported = 1;
        init_GL_AMD_multi_draw_indirect();
    }
    if (isExtensionSupported("GL_AMD_name_gen_delete")) {
        is_GL_AMD_name_gen_delete_supported = 1;
        init_GL_AMD_name_gen_delete();
    }
    if (isExtensionSupported("GL_AMD_occlusion_query_event")) {
        is_GL_AMD_occlusion_query_event_supported = 1;
        init_GL_AMD_occlusion_query_event();
    }
    if (isExtensionSupported("GL_AMD_performance_monitor")) {
        is_GL_AMD_performance_monitor_supported = 1;
        init_GL_AMD_performance_monitor();
    }
    if (isExtensionSupported("GL_AMD_pinned_memory")) {
        is_GL_AMD_pinned_memory_supported = 1;
        init_GL_AMD_pinned_memory();
    }
    if (isExtensionSupported("GL_AMD_query_buffer_object")) {
        is_GL_AMD_query_buffer_object_supported = 1;
        init_GL_AMD_query_buffer_object();
    }
    if (isExtensionSupported("GL_AMD_sample_positions")) {
        is_GL_AMD_sample_positions_supported = 1;
        init_GL_AMD_sample_positions();
    }
    if (isExtensionSupported("GL_AMD_seamless_cubemap_per_texture")) {
        is_GL_AMD_seamless_cubemap_per_texture_supported = 1;
        init_GL_AMD_seamless_cubemap_per_texture();
    }
    if (isExtensionSupported("GL_AMD_shader_atomic_counter_ops")) {
        is_GL_AMD_shader_atomic_counter_ops_supported = 1;
        init_GL_AMD_shader_atomic_counter_ops();
    }
    if (isExtensionSupported("GL_AMD_shader_ballot")) {
        is_GL_AMD_shader_ballot_supported = 1;
        init_GL_AMD_shader_ballot();
    }
    if (isExtensionSupported("GL_AMD_shader_explicit_vertex_parameter")) {
        is_GL_AMD_shader_explicit_vertex_parameter_supported = 1;
        init_GL_AMD_shader_explicit_vertex_parameter();
    }
    if (isExtensionSupported("GL_AMD_shader_gpu_shader_half_float_fetch")) {
        is_GL_AMD_shader_gpu_shader_half_float_fetch_supported = 1;
        init_GL_AMD_shader_gpu_shader_half_float_fetch();
    }
    if (isExtensionSupported("GL_AMD_shader_image_load_store_lod")) {
        is_GL_AMD_shader_image_load_store_lod_supported = 1;
        init_GL_AMD_shader_image_load_store_lod();
    }
    if (isExtensionSupported("GL_AMD_shader_stencil_export")) {
        is_GL_AMD_shader_stencil_export_supported = 1;
        init_GL_AMD_shader_stencil_export();
    }
    if (isExtensionSupported("GL_AMD_shader_trinary_minmax")) {
        is_GL_AMD_shader_trinary_minmax_supported = 1;
        init_GL_AMD_shader_trinary_minmax();
    }
    if (isExtensionSupported("GL_AMD_sparse_texture")) {
        is_GL_AMD_sparse_texture_supported = 1;
        init_GL_AMD_sparse_texture();
    }
    if (isExtensionSupported("GL_AMD_stencil_operation_extended")) {
        is_GL_AMD_stencil_operation_extended_supported = 1;
        init_GL_AMD_stencil_operation_extended();
    }
    if (isExtensionSupported("GL_AMD_texture_gather_bias_lod")) {
        is_GL_AMD_texture_gather_bias_lod_supported = 1;
        init_GL_AMD_texture_gather_bias_lod();
    }
    if (isExtensionSupported("GL_AMD_texture_texture4")) {
        is_GL_AMD_texture_texture4_supported = 1;
        init_GL_AMD_texture_texture4();
    }
    if (isExtensionSupported("GL_AMD_transform_feedback3_lines_triangles")) {
        is_GL_AMD_transform_feedback3_lines_triangles_supported = 1;
        init_GL_AMD_transform_feedback3_lines_triangles();
    }
    if (isExtensionSupported("GL_AMD_transform_feedback4")) {
        is_GL_AMD_transform_feedback4_supported = 1;
        init_GL_AMD_transform_feedback4();
    }
    if (isExtensionSupported("GL_AMD_vertex_shader_layer")) {
        is_GL_AMD_vertex_shader_layer_supported = 1;
        init_GL_AMD_vertex_shader_layer();
    }
    if (isExtensionSupported("GL_AMD_vertex_shader_tessellator")) {
        is_GL_AMD_vertex_shader_tessellator_supported = 1;
        init_GL_AMD_vertex_shader_tessellator();
    }
    if (isExtensionSupported("GL_AMD_vertex_shader_viewport_index")) {
        is_GL_AMD_vertex_shader_viewport_index_supported = 1;
        init_GL_AMD_vertex_shader_viewport_index();
    }
    if (isExtensionSupported("GL_APPLE_aux_depth_stencil")) {
        is_GL_APPLE_aux_depth_stencil_supported = 1;
        init_GL_APPLE_aux_depth_stencil();
    }
    if (isExtensionSupported("GL_APPLE_client_storage")) {
        is_GL_APPLE_client_storage_supported = 1;
        init_GL_APPLE_client_storage();
    }
    if (isExtensionSupported("GL_APPLE_element_array")) {
        is_GL_APPLE_element_array_supported = 1;
        init_GL_APPLE_element_array();
    }
    if (isExtensionSupported("GL_APPLE_fence")) {
        is_GL_APPLE_fence_supported = 1;
        init_GL_APPLE_fence();
    }
    if (isExtensionSupported("GL_APPLE_float_pixels")) {
        is_GL_APPLE_float_pixels_supported = 1;
        init_GL_APPLE_float_pixels();
    }
    if (isExtensionSupported("GL_APPLE_flush_buffer_range")) {
        is_GL_APPLE_flush_buffer_range_supported = 1;
        init_GL_APPLE_flush_buffer_range();
    }
    if (isExtensionSupported("GL_APPLE_object_purgeable")) {
        is_GL_APPLE_object_purgeable_supported = 1;
        init_GL_APPLE_object_purgeable();
    }
    if (isExtensionSupported("GL_APPLE_rgb_422")) {
        is_GL_APPLE_rgb_422_supported = 1;
        init_GL_APPLE_rgb_422();
    }
    if (isExtensionSupported("GL_APPLE_row_bytes")) {
        is_GL_APPLE_row_bytes_supported = 1;
        init_GL_APPLE_row_bytes();
    }
    if (isExtensionSupported("GL_APPLE_specular_vector")) {
        is_GL_APPLE_specular_vector_supported = 1;
        init_GL_APPLE_specular_vector();
    }
    if (isExtensionSupported("GL_APPLE_texture_range")) {
        is_GL_APPLE_texture_range_supported = 1;
        init_GL_APPLE_texture_range();
    }
    if (isExtensionSupported("GL_APPLE_transform_hint")) {
        is_GL_APPLE_transform_hint_supported = 1;
        init_GL_APPLE_transform_hint();
    }
    if (isExtensionSupported("GL_APPLE_vertex_array_object")) {
        is_GL_APPLE_vertex_array_object_supported = 1;
        init_GL_APPLE_vertex_array_object();
    }
    if (isExtensionSupported("GL_APPLE_vertex_array_range")) {
        is_GL_APPLE_vertex_array_range_supported = 1;
        init_GL_APPLE_vertex_array_range();
    }
    if (isExtensionSupported("GL_APPLE_vertex_program_evaluators")) {
        is_GL_APPLE_vertex_program_evaluators_supported = 1;
        init_GL_APPLE_vertex_program_evaluators();
    }
    if (isExtensionSupported("GL_APPLE_ycbcr_422")) {
        is_GL_APPLE_ycbcr_422_supported = 1;
        init_GL_APPLE_ycbcr_422();
    }
    if (isExtensionSupported("GL_ARB_ES2_compatibility")) {
        is_GL_ARB_ES2_compatibility_supported = 1;
        init_GL_ARB_ES2_compatibility();
    }
    if (isExtensionSupported("GL_ARB_ES3_1_compatibility")) {
        is_GL_ARB_ES3_1_compatibility_supported = 1;
        init_GL_ARB_ES3_1_compatibility();
    }
    if (isExtensionSupported("GL_ARB_ES3_2_compatibility")) {
        is_GL_ARB_ES3_2_compatibility_supported = 1;
        init_GL_ARB_ES3_2_compatibility();
    }
    if (isExtensionSupported("GL_ARB_ES3_compatibility")) {
        is_GL_ARB_ES3_compatibility_supported = 1;
        init_GL_ARB_ES3_compatibility();
    }
    if (isExtensionSupported("GL_ARB_arrays_of_arrays")) {
        is_GL_ARB_arrays_of_arrays_supported = 1;
        init_GL_ARB_arrays_of_arrays();
    }
    if (isExtensionSupported("GL_ARB_base_instance")) {
        is_GL_ARB_base_instance_supported = 1;
        init_GL_ARB_base_instance();
    }
    if (isExtensionSupported("GL_ARB_bindless_texture")) {
        is_GL_ARB_bindless_texture_supported = 1;
        init_GL_ARB_bindless_texture();
    }
    if (isExtensionSupported("GL_ARB_blend_func_extended")) {
        is_GL_ARB_blend_func_extended_supported = 1;
        init_GL_ARB_blend_func_extended();
    }
    if (isExtensionSupported("GL_ARB_buffer_storage")) {
        is_GL_ARB_buffer_storage_supported = 1;
        init_GL_ARB_buffer_storage();
    }
    if (isExtensionSupported("GL_ARB_cl_event")) {
        is_GL_ARB_cl_event_supported = 1;
        init_GL_ARB_cl_event();
    }
    if (isExtensionSupported("GL_ARB_clear_buffer_object")) {
        is_GL_ARB_clear_buffer_object_supported = 1;
        init_GL_ARB_clear_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_clear_texture")) {
        is_GL_ARB_clear_texture_supported = 1;
        init_GL_ARB_clear_texture();
    }
    if (isExtensionSupported("GL_ARB_clip_control")) {
        is_GL_ARB_clip_control_supported = 1;
        init_GL_ARB_clip_control();
    }
    if (isExtensionSupported("GL_ARB_color_buffer_float")) {
        is_GL_ARB_color_buffer_float_supported = 1;
        init_GL_ARB_color_buffer_float();
    }
    if (isExtensionSupported("GL_ARB_compatibility")) {
        is_GL_ARB_compatibility_supported = 1;
        init_GL_ARB_compatibility();
    }
    if (isExtensionSupported("GL_ARB_compressed_texture_pixel_storage")) {
        is_GL_ARB_compressed_texture_pixel_storage_supported = 1;
        init_GL_ARB_compressed_texture_pixel_storage();
    }
    if (isExtensionSupported("GL_ARB_compute_shader")) {
        is_GL_ARB_compute_shader_supported = 1;
        init_GL_ARB_compute_shader();
    }
    if (isExtensionSupported("GL_ARB_compute_variable_group_size")) {
        is_GL_ARB_compute_variable_group_size_supported = 1;
        init_GL_ARB_compute_variable_group_size();
    }
    if (isExtensionSupported("GL_ARB_conditional_render_inverted")) {
        is_GL_ARB_conditional_render_inverted_supported = 1;
        init_GL_ARB_conditional_render_inverted();
    }
    if (isExtensionSupported("GL_ARB_conservative_depth")) {
        is_GL_ARB_conservative_depth_supported = 1;
        init_GL_ARB_conservative_depth();
    }
    if (isExtensionSupported("GL_ARB_copy_buffer")) {
        is_GL_ARB_copy_buffer_supported = 1;
        init_GL_ARB_copy_buffer();
    }
    if (isExtensionSupported("GL_ARB_copy_image")) {
        is_GL_ARB_copy_image_supported = 1;
        init_GL_ARB_copy_image();
    }
    if (isExtensionSupported("GL_ARB_cull_distance")) {
        is_GL_ARB_cull_distance_supported = 1;
        init_GL_ARB_cull_distance();
    }
    if (isExtensionSupported("GL_ARB_debug_output")) {
        is_GL_ARB_debug_output_supported = 1;
        init_GL_ARB_debug_output();
    }
    if (isExtensionSupported("GL_ARB_depth_buffer_float")) {
        is_GL_ARB_depth_buffer_float_supported = 1;
        init_GL_ARB_depth_buffer_float();
    }
    if (isExtensionSupported("GL_ARB_depth_clamp")) {
        is_GL_ARB_depth_clamp_supported = 1;
        init_GL_ARB_depth_clamp();
    }
    if (isExtensionSupported("GL_ARB_depth_texture")) {
        is_GL_ARB_depth_texture_supported = 1;
        init_GL_ARB_depth_texture();
    }
    if (isExtensionSupported("GL_ARB_derivative_control")) {
        is_GL_ARB_derivative_control_supported = 1;
        init_GL_ARB_derivative_control();
    }
    if (isExtensionSupported("GL_ARB_direct_state_access")) {
        is_GL_ARB_direct_state_access_supported = 1;
        init_GL_ARB_direct_state_access();
    }
    if (isExtensionSupported("GL_ARB_draw_buffers")) {
        is_GL_ARB_draw_buffers_supported = 1;
        init_GL_ARB_draw_buffers();
    }
    if (isExtensionSupported("GL_ARB_draw_buffers_blend")) {
        is_GL_ARB_draw_buffers_blend_supported = 1;
        init_GL_ARB_draw_buffers_blend();
    }
    if (isExtensionSupported("GL_ARB_draw_elements_base_vertex")) {
        is_GL_ARB_draw_elements_base_vertex_supported = 1;
        init_GL_ARB_draw_elements_base_vertex();
    }
    if (isExtensionSupported("GL_ARB_draw_indirect")) {
        is_GL_ARB_draw_indirect_supported = 1;
        init_GL_ARB_draw_indirect();
    }
    if (isExtensionSupported("GL_ARB_draw_instanced")) {
        is_GL_ARB_draw_instanced_supported = 1;
        init_GL_ARB_draw_instanced();
    }
    if (isExtensionSupported("GL_ARB_enhanced_layouts")) {
        is_GL_ARB_enhanced_layouts_supported = 1;
        init_GL_ARB_enhanced_layouts();
    }
    if (isExtensionSupported("GL_ARB_explicit_attrib_location")) {
        is_GL_ARB_explicit_attrib_location_supported = 1;
        init_GL_ARB_explicit_attrib_location();
    }
    if (isExtensionSupported("GL_ARB_explicit_uniform_location")) {
        is_GL_ARB_explicit_uniform_location_supported = 1;
        init_GL_ARB_explicit_uniform_location();
    }
    if (isExtensionSupported("GL_ARB_fragment_coord_conventions")) {
        is_GL_ARB_fragment_coord_conventions_supported = 1;
        init_GL_ARB_fragment_coord_conventions();
    }
    if (isExtensionSupported("GL_ARB_fragment_layer_viewport")) {
        is_GL_ARB_fragment_layer_viewport_supported = 1;
        init_GL_ARB_fragment_layer_viewport();
    }
    if (isExtensionSupported("GL_ARB_fragment_program")) {
        is_GL_ARB_fragment_program_supported = 1;
        init_GL_ARB_fragment_program();
    }
    if (isExtensionSupported("GL_ARB_fragment_program_shadow")) {
        is_GL_ARB_fragment_program_shadow_supported = 1;
        init_GL_ARB_fragment_program_shadow();
    }
    if (isExtensionSupported("GL_ARB_fragment_shader")) {
        is_GL_ARB_fragment_shader_supported = 1;
        init_GL_ARB_fragment_shader();
    }
    if (isExtensionSupported("GL_ARB_fragment_shader_interlock")) {
        is_GL_ARB_fragment_shader_interlock_supported = 1;
        init_GL_ARB_fragment_shader_interlock();
    }
    if (isExtensionSupported("GL_ARB_framebuffer_no_attachments")) {
        is_GL_ARB_framebuffer_no_attachments_supported = 1;
        init_GL_ARB_framebuffer_no_attachments();
    }
    if (isExtensionSupported("GL_ARB_framebuffer_object")) {
        is_GL_ARB_framebuffer_object_supported = 1;
        init_GL_ARB_framebuffer_object();
    }
    if (isExtensionSupported("GL_ARB_framebuffer_sRGB")) {
        is_GL_ARB_framebuffer_sRGB_supported = 1;
        init_GL_ARB_framebuffer_sRGB();
    }
    if (isExtensionSupported("GL_ARB_geometry_shader4")) {
        is_GL_ARB_geometry_shader4_supported = 1;
        init_GL_ARB_geometry_shader4();
    }
    if (isExtensionSupported("GL_ARB_get_program_binary")) {
        is_GL_ARB_get_program_binary_supported = 1;
        init_GL_ARB_get_program_binary();
    }
    if (isExtensionSupported("GL_ARB_get_texture_sub_image")) {
        is_GL_ARB_get_texture_sub_image_supported = 1;
        init_GL_ARB_get_texture_sub_image();
    }
    if (isExtensionSupported("GL_ARB_gl_spirv")) {
        is_GL_ARB_gl_spirv_supported = 1;
        init_GL_ARB_gl_spirv();
    }
    if (isExtensionSupported("GL_ARB_gpu_shader5")) {
        is_GL_ARB_gpu_shader5_supported = 1;
        init_GL_ARB_gpu_shader5();
    }
    if (isExtensionSupported("GL_ARB_gpu_shader_fp64")) {
        is_GL_ARB_gpu_shader_fp64_supported = 1;
        init_GL_ARB_gpu_shader_fp64();
    }
    if (isExtensionSupported("GL_ARB_gpu_shader_int64")) {
        is_GL_ARB_gpu_shader_int64_supported = 1;
        init_GL_ARB_gpu_shader_int64();
    }
    if (isExtensionSupported("GL_ARB_half_float_pixel")) {
        is_GL_ARB_half_float_pixel_supported = 1;
        init_GL_ARB_half_float_pixel();
    }
    if (isExtensionSupported("GL_ARB_half_float_vertex")) {
        is_GL_ARB_half_float_vertex_supported = 1;
        init_GL_ARB_half_float_vertex();
    }
    if (isExtensionSupported("GL_ARB_imaging")) {
        is_GL_ARB_imaging_supported = 1;
        init_GL_ARB_imaging();
    }
    if (isExtensionSupported("GL_ARB_indirect_parameters")) {
        is_GL_ARB_indirect_parameters_supported = 1;
        init_GL_ARB_indirect_parameters();
    }
    if (isExtensionSupported("GL_ARB_instanced_arrays")) {
        is_GL_ARB_instanced_arrays_supported = 1;
        init_GL_ARB_instanced_arrays();
    }
    if (isExtensionSupported("GL_ARB_internalformat_query")) {
        is_GL_ARB_internalformat_query_supported = 1;
        init_GL_ARB_internalformat_query();
    }
    if (isExtensionSupported("GL_ARB_internalformat_query2")) {
        is_GL_ARB_internalformat_query2_supported = 1;
        init_GL_ARB_internalformat_query2();
    }
    if (isExtensionSupported("GL_ARB_invalidate_subdata")) {
        is_GL_ARB_invalidate_subdata_supported = 1;
        init_GL_ARB_invalidate_subdata();
    }
    if (isExtensionSupported("GL_ARB_map_buffer_alignment")) {
        is_GL_ARB_map_buffer_alignment_supported = 1;
        init_GL_ARB_map_buffer_alignment();
    }
    if (isExtensionSupported("GL_ARB_map_buffer_range")) {
        is_GL_ARB_map_buffer_range_supported = 1;
        init_GL_ARB_map_buffer_range();
    }
    if (isExtensionSupported("GL_ARB_matrix_palette")) {
        is_GL_ARB_matrix_palette_supported = 1;
        init_GL_ARB_matrix_palette();
    }
    if (isExtensionSupported("GL_ARB_multi_bind")) {
        is_GL_ARB_multi_bind_supported = 1;
        init_GL_ARB_multi_bind();
    }
    if (isExtensionSupported("GL_ARB_multi_draw_indirect")) {
        is_GL_ARB_multi_draw_indirect_supported = 1;
        init_GL_ARB_multi_draw_indirect();
    }
    if (isExtensionSupported("GL_ARB_multisample")) {
        is_GL_ARB_multisample_supported = 1;
        init_GL_ARB_multisample();
    }
    if (isExtensionSupported("GL_ARB_multitexture")) {
        is_GL_ARB_multitexture_supported = 1;
        init_GL_ARB_multitexture();
    }
    if (isExtensionSupported("GL_ARB_occlusion_query")) {
        is_GL_ARB_occlusion_query_supported = 1;
        init_GL_ARB_occlusion_query();
    }
    if (isExtensionSupported("GL_ARB_occlusion_query2")) {
        is_GL_ARB_occlusion_query2_supported = 1;
        init_GL_ARB_occlusion_query2();
    }
    if (isExtensionSupported("GL_ARB_parallel_shader_compile")) {
        is_GL_ARB_parallel_shader_compile_supported = 1;
        init_GL_ARB_parallel_shader_compile();
    }
    if (isExtensionSupported("GL_ARB_pipeline_statistics_query")) {
        is_GL_ARB_pipeline_statistics_query_supported = 1;
        init_GL_ARB_pipeline_statistics_query();
    }
    if (isExtensionSupported("GL_ARB_pixel_buffer_object")) {
        is_GL_ARB_pixel_buffer_object_supported = 1;
        init_GL_ARB_pixel_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_point_parameters")) {
        is_GL_ARB_point_parameters_supported = 1;
        init_GL_ARB_point_parameters();
    }
    if (isExtensionSupported("GL_ARB_point_sprite")) {
        is_GL_ARB_point_sprite_supported = 1;
        init_GL_ARB_point_sprite();
    }
    if (isExtensionSupported("GL_ARB_polygon_offset_clamp")) {
        is_GL_ARB_polygon_offset_clamp_supported = 1;
        init_GL_ARB_polygon_offset_clamp();
    }
    if (isExtensionSupported("GL_ARB_post_depth_coverage")) {
        is_GL_ARB_post_depth_coverage_supported = 1;
        init_GL_ARB_post_depth_coverage();
    }
    if (isExtensionSupported("GL_ARB_program_interface_query")) {
        is_GL_ARB_program_interface_query_supported = 1;
        init_GL_ARB_program_interface_query();
    }
    if (isExtensionSupported("GL_ARB_provoking_vertex")) {
        is_GL_ARB_provoking_vertex_supported = 1;
        init_GL_ARB_provoking_vertex();
    }
    if (isExtensionSupported("GL_ARB_query_buffer_object")) {
        is_GL_ARB_query_buffer_object_supported = 1;
        init_GL_ARB_query_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_robust_buffer_access_behavior")) {
        is_GL_ARB_robust_buffer_access_behavior_supported = 1;
        init_GL_ARB_robust_buffer_access_behavior();
    }
    if (isExtensionSupported("GL_ARB_robustness")) {
        is_GL_ARB_robustness_supported = 1;
        init_GL_ARB_robustness();
    }
    if (isExtensionSupported("GL_ARB_robustness_isolation")) {
        is_GL_ARB_robustness_isolation_supported = 1;
        init_GL_ARB_robustness_isolation();
    }
    if (isExtensionSupported("GL_ARB_sample_locations")) {
        is_GL_ARB_sample_locations_supported = 1;
        init_GL_ARB_sample_locations();
    }
    if (isExtensionSupported("GL_ARB_sample_shading")) {
        is_GL_ARB_sample_shading_supported = 1;
        init_GL_ARB_sample_shading();
    }
    if (isExtensionSupported("GL_ARB_sampler_objects")) {
        is_GL_ARB_sampler_objects_supported = 1;
        init_GL_ARB_sampler_objects();
    }
    if (isExtensionSupported("GL_ARB_seamless_cube_map")) {
        is_GL_ARB_seamless_cube_map_supported = 1;
        init_GL_ARB_seamless_cube_map();
    }
    if (isExtensionSupported("GL_ARB_seamless_cubemap_per_texture")) {
        is_GL_ARB_seamless_cubemap_per_texture_supported = 1;
        init_GL_ARB_seamless_cubemap_per_texture();
    }
    if (isExtensionSupported("GL_ARB_separate_shader_objects")) {
        is_GL_ARB_separate_shader_objects_supported = 1;
        init_GL_ARB_separate_shader_objects();
    }
    if (isExtensionSupported("GL_ARB_shader_atomic_counter_ops")) {
        is_GL_ARB_shader_atomic_counter_ops_supported = 1;
        init_GL_ARB_shader_atomic_counter_ops();
    }
    if (isExtensionSupported("GL_ARB_shader_atomic_counters")) {
        is_GL_ARB_shader_atomic_counters_supported = 1;
        init_GL_ARB_shader_atomic_counters();
    }
    if (isExtensionSupported("GL_ARB_shader_ballot")) {
        is_GL_ARB_shader_ballot_supported = 1;
        init_GL_ARB_shader_ballot();
    }
    if (isExtensionSupported("GL_ARB_shader_bit_encoding")) {
        is_GL_ARB_shader_bit_encoding_supported = 1;
        init_GL_ARB_shader_bit_encoding();
    }
    if (isExtensionSupported("GL_ARB_shader_clock")) {
        is_GL_ARB_shader_clock_supported = 1;
        init_GL_ARB_shader_clock();
    }
    if (isExtensionSupported("GL_ARB_shader_draw_parameters")) {
        is_GL_ARB_shader_draw_parameters_supported = 1;
        init_GL_ARB_shader_draw_parameters();
    }
    if (isExtensionSupported("GL_ARB_shader_group_vote")) {
        is_GL_ARB_shader_group_vote_supported = 1;
        init_GL_ARB_shader_group_vote();
    }
    if (isExtensionSupported("GL_ARB_shader_image_load_store")) {
        is_GL_ARB_shader_image_load_store_supported = 1;
        init_GL_ARB_shader_image_load_store();
    }
    if (isExtensionSupported("GL_ARB_shader_image_size")) {
        is_GL_ARB_shader_image_size_supported = 1;
        init_GL_ARB_shader_image_size();
    }
    if (isExtensionSupported("GL_ARB_shader_objects")) {
        is_GL_ARB_shader_objects_supported = 1;
        init_GL_ARB_shader_objects();
    }
    if (isExtensionSupported("GL_ARB_shader_precision")) {
        is_GL_ARB_shader_precision_supported = 1;
        init_GL_ARB_shader_precision();
    }
    if (isExtensionSupported("GL_ARB_shader_stencil_export")) {
        is_GL_ARB_shader_stencil_export_supported = 1;
        init_GL_ARB_shader_stencil_export();
    }
    if (isExtensionSupported("GL_ARB_shader_storage_buffer_object")) {
        is_GL_ARB_shader_storage_buffer_object_supported = 1;
        init_GL_ARB_shader_storage_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_shader_subroutine")) {
        is_GL_ARB_shader_subroutine_supported = 1;
        init_GL_ARB_shader_subroutine();
    }
    if (isExtensionSupported("GL_ARB_shader_texture_image_samples")) {
        is_GL_ARB_shader_texture_image_samples_supported = 1;
        init_GL_ARB_shader_texture_image_samples();
    }
    if (isExtensionSupported("GL_ARB_shader_texture_lod")) {
        is_GL_ARB_shader_texture_lod_supported = 1;
        init_GL_ARB_shader_texture_lod();
    }
    if (isExtensionSupported("GL_ARB_shader_viewport_layer_array")) {
        is_GL_ARB_shader_viewport_layer_array_supported = 1;
        init_GL_ARB_shader_viewport_layer_array();
    }
    if (isExtensionSupported("GL_ARB_shading_language_100")) {
        is_GL_ARB_shading_language_100_supported = 1;
        init_GL_ARB_shading_language_100();
    }
    if (isExtensionSupported("GL_ARB_shading_language_420pack")) {
        is_GL_ARB_shading_language_420pack_supported = 1;
        init_GL_ARB_shading_language_420pack();
    }
    if (isExtensionSupported("GL_ARB_shading_language_include")) {
        is_GL_ARB_shading_language_include_supported = 1;
        init_GL_ARB_shading_language_include();
    }
    if (isExtensionSupported("GL_ARB_shading_language_packing")) {
        is_GL_ARB_shading_language_packing_supported = 1;
        init_GL_ARB_shading_language_packing();
    }
    if (isExtensionSupported("GL_ARB_shadow")) {
        is_GL_ARB_shadow_supported = 1;
        init_GL_ARB_shadow();
    }
    if (isExtensionSupported("GL_ARB_shadow_ambient")) {
        is_GL_ARB_shadow_ambient_supported = 1;
        init_GL_ARB_shadow_ambient();
    }
    if (isExtensionSupported("GL_ARB_sparse_buffer")) {
        is_GL_ARB_sparse_buffer_supported = 1;
        init_GL_ARB_sparse_buffer();
    }
    if (isExtensionSupported("GL_ARB_sparse_texture")) {
        is_GL_ARB_sparse_texture_supported = 1;
        init_GL_ARB_sparse_texture();
    }
    if (isExtensionSupported("GL_ARB_sparse_texture2")) {
        is_GL_ARB_sparse_texture2_supported = 1;
        init_GL_ARB_sparse_texture2();
    }
    if (isExtensionSupported("GL_ARB_sparse_texture_clamp")) {
        is_GL_ARB_sparse_texture_clamp_supported = 1;
        init_GL_ARB_sparse_texture_clamp();
    }
    if (isExtensionSupported("GL_ARB_spirv_extensions")) {
        is_GL_ARB_spirv_extensions_supported = 1;
        init_GL_ARB_spirv_extensions();
    }
    if (isExtensionSupported("GL_ARB_stencil_texturing")) {
        is_GL_ARB_stencil_texturing_supported = 1;
        init_GL_ARB_stencil_texturing();
    }
    if (isExtensionSupported("GL_ARB_sync")) {
        is_GL_ARB_sync_supported = 1;
        init_GL_ARB_sync();
    }
    if (isExtensionSupported("GL_ARB_tessellation_shader")) {
        is_GL_ARB_tessellation_shader_supported = 1;
        init_GL_ARB_tessellation_shader();
    }
    if (isExtensionSupported("GL_ARB_texture_barrier")) {
        is_GL_ARB_texture_barrier_supported = 1;
        init_GL_ARB_texture_barrier();
    }
    if (isExtensionSupported("GL_ARB_texture_border_clamp")) {
        is_GL_ARB_texture_border_clamp_supported = 1;
        init_GL_ARB_texture_border_clamp();
    }
    if (isExtensionSupported("GL_ARB_texture_buffer_object")) {
        is_GL_ARB_texture_buffer_object_supported = 1;
        init_GL_ARB_texture_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_texture_buffer_object_rgb32")) {
        is_GL_ARB_texture_buffer_object_rgb32_supported = 1;
        init_GL_ARB_texture_buffer_object_rgb32();
    }
    if (isExtensionSupported("GL_ARB_texture_buffer_range")) {
        is_GL_ARB_texture_buffer_range_supported = 1;
        init_GL_ARB_texture_buffer_range();
    }
    if (isExtensionSupported("GL_ARB_texture_compression")) {
        is_GL_ARB_texture_compression_supported = 1;
        init_GL_ARB_texture_compression();
    }
    if (isExtensionSupported("GL_ARB_texture_compression_bptc")) {
        is_GL_ARB_texture_compression_bptc_supported = 1;
        init_GL_ARB_texture_compression_bptc();
    }
    if (isExtensionSupported("GL_ARB_texture_compression_rgtc")) {
        is_GL_ARB_texture_compression_rgtc_supported = 1;
        init_GL_ARB_texture_compression_rgtc();
    }
    if (isExtensionSupported("GL_ARB_texture_cube_map")) {
        is_GL_ARB_texture_cube_map_supported = 1;
        init_GL_ARB_texture_cube_map();
    }
    if (isExtensionSupported("GL_ARB_texture_cube_map_array")) {
        is_GL_ARB_texture_cube_map_array_supported = 1;
        init_GL_ARB_texture_cube_map_array();
    }
    if (isExtensionSupported("GL_ARB_texture_env_add")) {
        is_GL_ARB_texture_env_add_supported = 1;
        init_GL_ARB_texture_env_add();
    }
    if (isExtensionSupported("GL_ARB_texture_env_combine")) {
        is_GL_ARB_texture_env_combine_supported = 1;
        init_GL_ARB_texture_env_combine();
    }
    if (isExtensionSupported("GL_ARB_texture_env_crossbar")) {
        is_GL_ARB_texture_env_crossbar_supported = 1;
        init_GL_ARB_texture_env_crossbar();
    }
    if (isExtensionSupported("GL_ARB_texture_env_dot3")) {
        is_GL_ARB_texture_env_dot3_supported = 1;
        init_GL_ARB_texture_env_dot3();
    }
    if (isExtensionSupported("GL_ARB_texture_filter_anisotropic")) {
        is_GL_ARB_texture_filter_anisotropic_supported = 1;
        init_GL_ARB_texture_filter_anisotropic();
    }
    if (isExtensionSupported("GL_ARB_texture_filter_minmax")) {
        is_GL_ARB_texture_filter_minmax_supported = 1;
        init_GL_ARB_texture_filter_minmax();
    }
    if (isExtensionSupported("GL_ARB_texture_float")) {
        is_GL_ARB_texture_float_supported = 1;
        init_GL_ARB_texture_float();
    }
    if (isExtensionSupported("GL_ARB_texture_gather")) {
        is_GL_ARB_texture_gather_supported = 1;
        init_GL_ARB_texture_gather();
    }
    if (isExtensionSupported("GL_ARB_texture_mirror_clamp_to_edge")) {
        is_GL_ARB_texture_mirror_clamp_to_edge_supported = 1;
        init_GL_ARB_texture_mirror_clamp_to_edge();
    }
    if (isExtensionSupported("GL_ARB_texture_mirrored_repeat")) {
        is_GL_ARB_texture_mirrored_repeat_supported = 1;
        init_GL_ARB_texture_mirrored_repeat();
    }
    if (isExtensionSupported("GL_ARB_texture_multisample")) {
        is_GL_ARB_texture_multisample_supported = 1;
        init_GL_ARB_texture_multisample();
    }
    if (isExtensionSupported("GL_ARB_texture_non_power_of_two")) {
        is_GL_ARB_texture_non_power_of_two_supported = 1;
        init_GL_ARB_texture_non_power_of_two();
    }
    if (isExtensionSupported("GL_ARB_texture_query_levels")) {
        is_GL_ARB_texture_query_levels_supported = 1;
        init_GL_ARB_texture_query_levels();
    }
    if (isExtensionSupported("GL_ARB_texture_query_lod")) {
        is_GL_ARB_texture_query_lod_supported = 1;
        init_GL_ARB_texture_query_lod();
    }
    if (isExtensionSupported("GL_ARB_texture_rectangle")) {
        is_GL_ARB_texture_rectangle_supported = 1;
        init_GL_ARB_texture_rectangle();
    }
    if (isExtensionSupported("GL_ARB_texture_rg")) {
        is_GL_ARB_texture_rg_supported = 1;
        init_GL_ARB_texture_rg();
    }
    if (isExtensionSupported("GL_ARB_texture_rgb10_a2ui")) {
        is_GL_ARB_texture_rgb10_a2ui_supported = 1;
        init_GL_ARB_texture_rgb10_a2ui();
    }
    if (isExtensionSupported("GL_ARB_texture_stencil8")) {
        is_GL_ARB_texture_stencil8_supported = 1;
        init_GL_ARB_texture_stencil8();
    }
    if (isExtensionSupported("GL_ARB_texture_storage")) {
        is_GL_ARB_texture_storage_supported = 1;
        init_GL_ARB_texture_storage();
    }
    if (isExtensionSupported("GL_ARB_texture_storage_multisample")) {
        is_GL_ARB_texture_storage_multisample_supported = 1;
        init_GL_ARB_texture_storage_multisample();
    }
    if (isExtensionSupported("GL_ARB_texture_swizzle")) {
        is_GL_ARB_texture_swizzle_supported = 1;
        init_GL_ARB_texture_swizzle();
    }
    if (isExtensionSupported("GL_ARB_texture_view")) {
        is_GL_ARB_texture_view_supported = 1;
        init_GL_ARB_texture_view();
    }
    if (isExtensionSupported("GL_ARB_timer_query")) {
        is_GL_ARB_timer_query_supported = 1;
        init_GL_ARB_timer_query();
    }
    if (isExtensionSupported("GL_ARB_transform_feedback2")) {
        is_GL_ARB_transform_feedback2_supported = 1;
        init_GL_ARB_transform_feedback2();
    }
    if (isExtensionSupported("GL_ARB_transform_feedback3")) {
        is_GL_ARB_transform_feedback3_supported = 1;
        init_GL_ARB_transform_feedback3();
    }
    if (isExtensionSupported("GL_ARB_transform_feedback_instanced")) {
        is_GL_ARB_transform_feedback_instanced_supported = 1;
        init_GL_ARB_transform_feedback_instanced();
    }
    if (isExtensionSupported("GL_ARB_transform_feedback_overflow_query")) {
        is_GL_ARB_transform_feedback_overflow_query_supported = 1;
        init_GL_ARB_transform_feedback_overflow_query();
    }
    if (isExtensionSupported("GL_ARB_transpose_matrix")) {
        is_GL_ARB_transpose_matrix_supported = 1;
        init_GL_ARB_transpose_matrix();
    }
    if (isExtensionSupported("GL_ARB_uniform_buffer_object")) {
        is_GL_ARB_uniform_buffer_object_supported = 1;
        init_GL_ARB_uniform_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_vertex_array_bgra")) {
        is_GL_ARB_vertex_array_bgra_supported = 1;
        init_GL_ARB_vertex_array_bgra();
    }
    if (isExtensionSupported("GL_ARB_vertex_array_object")) {
        is_GL_ARB_vertex_array_object_supported = 1;
        init_GL_ARB_vertex_array_object();
    }
    if (isExtensionSupported("GL_ARB_vertex_attrib_64bit")) {
        is_GL_ARB_vertex_attrib_64bit_supported = 1;
        init_GL_ARB_vertex_attrib_64bit();
    }
    if (isExtensionSupported("GL_ARB_vertex_attrib_binding")) {
        is_GL_ARB_vertex_attrib_binding_supported = 1;
        init_GL_ARB_vertex_attrib_binding();
    }
    if (isExtensionSupported("GL_ARB_vertex_blend")) {
        is_GL_ARB_vertex_blend_supported = 1;
        init_GL_ARB_vertex_blend();
    }
    if (isExtensionSupported("GL_ARB_vertex_buffer_object")) {
        is_GL_ARB_vertex_buffer_object_supported = 1;
        init_GL_ARB_vertex_buffer_object();
    }
    if (isExtensionSupported("GL_ARB_vertex_program")) {
        is_GL_ARB_vertex_program_supported = 1;
        init_GL_ARB_vertex_program();
    }
    if (isExtensionSupported("GL_ARB_vertex_shader")) {
        is_GL_ARB_vertex_shader_supported = 1;
        init_GL_ARB_vertex_shader();
    }
    if (isExtensionSupported("GL_ARB_vertex_type_10f_11f_11f_rev")) {
        is_GL_ARB_vertex_type_10f_11f_11f_rev_supported = 1;
        init_GL_ARB_vertex_type_10f_11f_11f_rev();
    }
    if (isExtensionSupported("GL_ARB_vertex_type_2_10_10_10_rev")) {
        is_GL_ARB_vertex_type_2_10_10_10_rev_supported = 1;
        init_GL_ARB_vertex_type_2_10_10_10_rev();
    }
    if (isExtensionSupported("GL_ARB_viewport_array")) {
        is_GL_ARB_viewport_array_supported = 1;
        init_GL_ARB_viewport_array();
    }
    if (isExtensionSupported("GL_ARB_window_pos")) {
        is_GL_ARB_window_pos_supported = 1;
        init_GL_ARB_window_pos();
    }
    if (isExtensionSupported("GL_ATI_draw_buffers")) {
        is_GL_ATI_draw_buffers_supported = 1;
        init_GL_ATI_draw_buffers();
    }
    if (isExtensionSupported("GL_ATI_element_array")) {
        is_GL_ATI_element_array_supported = 1;
        init_GL_ATI_element_array();
    }
    if (isExtensionSupported("GL_ATI_envmap_bumpmap")) {
        is_GL_ATI_envmap_bumpmap_supported = 1;
        init_GL_ATI_envmap_bumpmap();
    }
    if (isExtensionSupported("GL_ATI_fragment_shader")) {
        is_GL_ATI_fragment_shader_supported = 1;
        init_GL_ATI_fragment_shader();
    }
    if (isExtensionSupported("GL_ATI_map_object_buffer")) {
        is_GL_ATI_map_object_buffer_supported = 1;
        init_GL_ATI_map_object_buffer();
    }
    if (isExtensionSupported("GL_ATI_meminfo")) {
        is_GL_ATI_meminfo_supported = 1;
        init_GL_ATI_meminfo();
    }
    if (isExtensionSupported("GL_ATI_pixel_format_float")) {
        is_GL_ATI_pixel_format_float_supported = 1;
        init_GL_ATI_pixel_format_float();
    }
    if (isExtensionSupported("GL_ATI_pn_triangles")) {
        is_GL_ATI_pn_triangles_supported = 1;
        init_GL_ATI_pn_triangles();
    }
    if (isExtensionSupported("GL_ATI_separate_stencil")) {
        is_GL_ATI_separate_stencil_supported = 1;
        init_GL_ATI_separate_stencil();
    }
    if (isExtensionSupported("GL_ATI_text_fragment_shader")) {
        is_GL_ATI_text_fragment_shader_supported = 1;
        init_GL_ATI_text_fragment_shader();
    }
    if (isExtensionSupported("GL_ATI_texture_env_combine3")) {
        is_GL_ATI_texture_env_combine3_supported = 1;
        init_GL_ATI_texture_env_combine3();
    }
    if (isExtensionSupported("GL_ATI_texture_float")) {
        is_GL_ATI_texture_float_supported = 1;
        init_GL_ATI_texture_float();
    }
    if (isExtensionSupported("GL_ATI_texture_mirror_once")) {
        is_GL_ATI_texture_mirror_once_supported = 1;
        init_GL_ATI_texture_mirror_once();
    }
    if (isExtensionSupported("GL_ATI_vertex_array_object")) {
        is_GL_ATI_vertex_array_object_supported = 1;
        init_GL_ATI_vertex_array_object();
    }
    if (isExtensionSupported("GL_ATI_vertex_attrib_array_object")) {
        is_GL_ATI_vertex_attrib_array_object_supported = 1;
        init_GL_ATI_vertex_attrib_array_object();
    }
    if (isExtensionSupported("GL_ATI_vertex_streams")) {
        is_GL_ATI_vertex_streams_supported = 1;
        init_GL_ATI_vertex_streams();
    }
    if (isExtensionSupported("GL_EXT_422_pixels")) {
        is_GL_EXT_422_pixels_supported = 1;
        init_GL_EXT_422_pixels();
    }
    if (isExtensionSupported("GL_EXT_EGL_image_storage")) {
        is_GL_EXT_EGL_image_storage_supported = 1;
        init_GL_EXT_EGL_image_storage();
    }
    if (isExtensionSupported("GL_EXT_EGL_sync")) {
        is_GL_EXT_EGL_sync_supported = 1;
        init_GL_EXT_EGL_sync();
    }
    if (isExtensionSupported("GL_EXT_abgr")) {
        is_GL_EXT_abgr_supported = 1;
        init_GL_EXT_abgr();
    }
    if (isExtensionSupported("GL_EXT_bgra")) {
        is_GL_EXT_bgra_supported = 1;
        init_GL_EXT_bgra();
    }
    if (isExtensionSupported("GL_EXT_bindable_uniform")) {
        is_GL_EXT_bindable_uniform_supported = 1;
        init_GL_EXT_bindable_uniform();
    }
    if (isExtensionSupported("GL_EXT_blend_color")) {
        is_GL_EXT_blend_color_supported = 1;
        init_GL_EXT_blend_color();
    }
    if (isExtensionSupported("GL_EXT_blend_equation_separate")) {
        is_GL_EXT_blend_equation_separate_supported = 1;
        init_GL_EXT_blend_equation_separate();
    }
    if (isExtensionSupported("GL_EXT_blend_func_separate")) {
        is_GL_EXT_blend_func_separate_supported = 1;
        init_GL_EXT_blend_func_separate();
    }
    if (isExtensionSupported("GL_EXT_blend_logic_op")) {
        is_GL_EXT_blend_logic_op_supported = 1;
        init_GL_EXT_blend_logic_op();
    }
    if (isExtensionSupported("GL_EXT_blend_minmax")) {
        is_GL_EXT_blend_minmax_supported = 1;
        init_GL_EXT_blend_minmax();
    }
    if (isExtensionSupported("GL_EXT_blend_subtract")) {
        is_GL_EXT_blend_subtract_supported = 1;
        init_GL_EXT_blend_subtract();
    }
    if (isExtensionSupported("GL_EXT_clip_volume_hint")) {
        is_GL_EXT_clip_volume_hint_supported = 1;
        init_GL_EXT_clip_volume_hint();
    }
    if (isExtensionSupported("GL_EXT_cmyka")) {
        is_GL_EXT_cmyka_supported = 1;
        init_GL_EXT_cmyka();
    }
    if (isExtensionSupported("GL_EXT_color_subtable")) {
        is_GL_EXT_color_subtable_supported = 1;
        init_GL_EXT_color_subtable();
    }
    if (isExtensionSupported("GL_EXT_compiled_vertex_array")) {
        is_GL_EXT_compiled_vertex_array_supported = 1;
        init_GL_EXT_compiled_vertex_array();
    }
    if (isExtensionSupported("GL_EXT_convolution")) {
        is_GL_EXT_convolution_supported = 1;
        init_GL_EXT_convolution();
    }
    if (isExtensionSupported("GL_EXT_coordinate_frame")) {
        is_GL_EXT_coordinate_frame_supported = 1;
        init_GL_EXT_coordinate_frame();
    }
    if (isExtensionSupported("GL_EXT_copy_texture")) {
        is_GL_EXT_copy_texture_supported = 1;
        init_GL_EXT_copy_texture();
    }
    if (isExtensionSupported("GL_EXT_cull_vertex")) {
        is_GL_EXT_cull_vertex_supported = 1;
        init_GL_EXT_cull_vertex();
    }
    if (isExtensionSupported("GL_EXT_debug_label")) {
        is_GL_EXT_debug_label_supported = 1;
        init_GL_EXT_debug_label();
    }
    if (isExtensionSupported("GL_EXT_debug_marker")) {
        is_GL_EXT_debug_marker_supported = 1;
        init_GL_EXT_debug_marker();
    }
    if (isExtensionSupported("GL_EXT_depth_bounds_test")) {
        is_GL_EXT_depth_bounds_test_supported = 1;
        init_GL_EXT_depth_bounds_test();
    }
    if (isExtensionSupported("GL_EXT_direct_state_access")) {
        is_GL_EXT_direct_state_access_supported = 1;
        init_GL_EXT_direct_state_access();
    }
    if (isExtensionSupported("GL_EXT_draw_buffers2")) {
        is_GL_EXT_draw_buffers2_supported = 1;
        init_GL_EXT_draw_buffers2();
    }
    if (isExtensionSupported("GL_EXT_draw_instanced")) {
        is_GL_EXT_draw_instanced_supported = 1;
        init_GL_EXT_draw_instanced();
    }
    if (isExtensionSupported("GL_EXT_draw_range_elements")) {
        is_GL_EXT_draw_range_elements_supported = 1;
        init_GL_EXT_draw_range_elements();
    }
    if (isExtensionSupported("GL_EXT_external_buffer")) {
        is_GL_EXT_external_buffer_supported = 1;
        init_GL_EXT_external_buffer();
    }
    if (isExtensionSupported("GL_EXT_fog_coord")) {
        is_GL_EXT_fog_coord_supported = 1;
        init_GL_EXT_fog_coord();
    }
    if (isExtensionSupported("GL_EXT_framebuffer_blit")) {
        is_GL_EXT_framebuffer_blit_supported = 1;
        init_GL_EXT_framebuffer_blit();
    }
    if (isExtensionSupported("GL_EXT_framebuffer_multisample")) {
        is_GL_EXT_framebuffer_multisample_supported = 1;
        init_GL_EXT_framebuffer_multisample();
    }
    if (isExtensionSupported("GL_EXT_framebuffer_multisample_blit_scaled")) {
        is_GL_EXT_framebuffer_multisample_blit_scaled_supported = 1;
        init_GL_EXT_framebuffer_multisample_blit_scaled();
    }
    if (isExtensionSupported("GL_EXT_framebuffer_object")) {
        is_GL_EXT_framebuffer_object_supported = 1;
        init_GL_EXT_framebuffer_object();
    }
    if (isExtensionSupported("GL_EXT_framebuffer_sRGB")) {
        is_GL_EXT_framebuffer_sRGB_supported = 1;
        init_GL_EXT_framebuffer_sRGB();
    }
    if (isExtensionSupported("GL_EXT_geometry_shader4")) {
        is_GL_EXT_geometry_shader4_supported = 1;
        init_GL_EXT_geometry_shader4();
    }
    if (isExtensionSupported("GL_EXT_gpu_program_parameters")) {
        is_GL_EXT_gpu_program_parameters_supported = 1;
        init_GL_EXT_gpu_program_parameters();
    }
    if (isExtensionSupported("GL_EXT_gpu_shader4")) {
        is_GL_EXT_gpu_shader4_supported = 1;
        init_GL_EXT_gpu_shader4();
    }
    if (isExtensionSupported("GL_EXT_histogram")) {
        is_GL_EXT_histogram_supported = 1;
        init_GL_EXT_histogram();
    }
    if (isExtensionSupported("GL_EXT_index_array_formats")) {
        is_GL_EXT_index_array_formats_supported = 1;
        init_GL_EXT_index_array_formats();
    }
    if (isExtensionSupported("GL_EXT_index_func")) {
        is_GL_EXT_index_func_supported = 1;
        init_GL_EXT_index_func();
    }
    if (isExtensionSupported("GL_EXT_index_material")) {
        is_GL_EXT_index_material_supported = 1;
        init_GL_EXT_index_material();
    }
    if (isExtensionSupported("GL_EXT_index_texture")) {
        is_GL_EXT_index_texture_supported = 1;
        init_GL_EXT_index_texture();
    }
    if (isExtensionSupported("GL_EXT_light_texture")) {
        is_GL_EXT_light_texture_supported = 1;
        init_GL_EXT_light_texture();
    }
    if (isExtensionSupported("GL_EXT_memory_object")) {
        is_GL_EXT_memory_object_supported = 1;
        init_GL_EXT_memory_object();
    }
    if (isExtensionSupported("GL_EXT_memory_object_fd")) {
        is_GL_EXT_memory_object_fd_supported = 1;
        init_GL_EXT_memory_object_fd();
    }
    if (isExtensionSupported("GL_EXT_memory_object_win32")) {
        is_GL_EXT_memory_object_win32_supported = 1;
        init_GL_EXT_memory_object_win32();
    }
    if (isExtensionSupported("GL_EXT_misc_attribute")) {
        is_GL_EXT_misc_attribute_supported = 1;
        init_GL_EXT_misc_attribute();
    }
    if (isExtensionSupported("GL_EXT_multi_draw_arrays")) {
        is_GL_EXT_multi_draw_arrays_supported = 1;
        init_GL_EXT_multi_draw_arrays();
    }
    if (isExtensionSupported("GL_EXT_multisample")) {
        is_GL_EXT_multisample_supported = 1;
        init_GL_EXT_multisample();
    }
    if (isExtensionSupported("GL_EXT_multiview_tessellation_geometry_shader")) {
        is_GL_EXT_multiview_tessellation_geometry_shader_supported = 1;
        init_GL_EXT_multiview_tessellation_geometry_shader();
    }
    if (isExtensionSupported("GL_EXT_multiview_texture_multisample")) {
        is_GL_EXT_multiview_texture_multisample_supported = 1;
        init_GL_EXT_multiview_texture_multisample();
    }
    if (isExtensionSupported("GL_EXT_multiview_timer_query")) {
        is_GL_EXT_multiview_timer_query_supported = 1;
        init_GL_EXT_multiview_timer_query();
    }
    if (isExtensionSupported("GL_EXT_packed_depth_stencil")) {
        is_GL_EXT_packed_depth_stencil_supported = 1;
        init_GL_EXT_packed_depth_stencil();
    }
    if (isExtensionSupported("GL_EXT_packed_float")) {
        is_GL_EXT_packed_float_supported = 1;
        init_GL_EXT_packed_float();
    }
    if (isExtensionSupported("GL_EXT_packed_pixels")) {
        is_GL_EXT_packed_pixels_supported = 1;
        init_GL_EXT_packed_pixels();
    }
    if (isExtensionSupported("GL_EXT_paletted_texture")) {
        is_GL_EXT_paletted_texture_supported = 1;
        init_GL_EXT_paletted_texture();
    }
    if (isExtensionSupported("GL_EXT_pixel_buffer_object")) {
        is_GL_EXT_pixel_buffer_object_supported = 1;
        init_GL_EXT_pixel_buffer_object();
    }
    if (isExtensionSupported("GL_EXT_pixel_transform")) {
        is_GL_EXT_pixel_transform_supported = 1;
        init_GL_EXT_pixel_transform();
    }
    if (isExtensionSupported("GL_EXT_pixel_transform_color_table")) {
        is_GL_EXT_pixel_transform_color_table_supported = 1;
        init_GL_EXT_pixel_transform_color_table();
    }
    if (isExtensionSupported("GL_EXT_point_parameters")) {
        is_GL_EXT_point_parameters_supported = 1;
        init_GL_EXT_point_parameters();
    }
    if (isExtensionSupported("GL_EXT_polygon_offset")) {
        is_GL_EXT_polygon_offset_supported = 1;
        init_GL_EXT_polygon_offset();
    }
    if (isExtensionSupported("GL_EXT_polygon_offset_clamp")) {
        is_GL_EXT_polygon_offset_clamp_supported = 1;
        init_GL_EXT_polygon_offset_clamp();
    }
    if (isExtensionSupported("GL_EXT_post_depth_coverage")) {
        is_GL_EXT_post_depth_coverage_supported = 1;
        init_GL_EXT_post_depth_coverage();
    }
    if (isExtensionSupported("GL_EXT_provoking_vertex")) {
        is_GL_EXT_provoking_vertex_supported = 1;
        init_GL_EXT_provoking_vertex();
    }
    if (isExtensionSupported("GL_EXT_raster_multisample")) {
        is_GL_EXT_raster_multisample_supported = 1;
        init_GL_EXT_raster_multisample();
    }
    if (isExtensionSupported("GL_EXT_rescale_normal")) {
        is_GL_EXT_rescale_normal_supported = 1;
        init_GL_EXT_rescale_normal();
    }
    if (isExtensionSupported("GL_EXT_secondary_color")) {
        is_GL_EXT_secondary_color_supported = 1;
        init_GL_EXT_secondary_color();
    }
    if (isExtensionSupported("GL_EXT_semaphore")) {
        is_GL_EXT_semaphore_supported = 1;
        init_GL_EXT_semaphore();
    }
    if (isExtensionSupported("GL_EXT_semaphore_fd")) {
        is_GL_EXT_semaphore_fd_supported = 1;
        init_GL_EXT_semaphore_fd();
    }
    if (isExtensionSupported("GL_EXT_semaphore_win32")) {
        is_GL_EXT_semaphore_win32_supported = 1;
        init_GL_EXT_semaphore_win32();
    }
    if (isExtensionSupported("GL_EXT_separate_shader_objects")) {
        is_GL_EXT_separate_shader_objects_supported = 1;
        init_GL_EXT_separate_shader_objects();
    }
    if (isExtensionSupported("GL_EXT_separate_specular_color")) {
        is_GL_EXT_separate_specular_color_supported = 1;
        init_GL_EXT_separate_specular_color();
    }
    if (isExtensionSupported("GL_EXT_shader_framebuffer_fetch")) {
        is_GL_EXT_shader_framebuffer_fetch_supported = 1;
        init_GL_EXT_shader_framebuffer_fetch();
    }
    if (isExtensionSupported("GL_EXT_shader_framebuffer_fetch_non_coherent")) {
        is_GL_EXT_shader_framebuffer_fetch_non_coherent_supported = 1;
        init_GL_EXT_shader_framebuffer_fetch_non_coherent();
    }
    if (isExtensionSupported("GL_EXT_shader_image_load_formatted")) {
        is_GL_EXT_shader_image_load_formatted_supported = 1;
        init_GL_EXT_shader_image_load_formatted();
    }
    if (isExtensionSupported("GL_EXT_shader_image_load_store")) {
        is_GL_EXT_shader_image_load_store_supported = 1;
        init_GL_EXT_shader_image_load_store();
    }
    if (isExtensionSupported("GL_EXT_shader_integer_mix")) {
        is_GL_EXT_shader_integer_mix_supported = 1;
        init_GL_EXT_shader_integer_mix();
    }
    if (isExtensionSupported("GL_EXT_shader_samples_identical")) {
        is_GL_EXT_shader_samples_identical_supported = 1;
        init_GL_EXT_shader_samples_identical();
    }
    if (isExtensionSupported("GL_EXT_shadow_funcs")) {
        is_GL_EXT_shadow_funcs_supported = 1;
        init_GL_EXT_shadow_funcs();
    }
    if (isExtensionSupported("GL_EXT_shared_texture_palette")) {
        is_GL_EXT_shared_texture_palette_supported = 1;
        init_GL_EXT_shared_texture_palette();
    }
    if (isExtensionSupported("GL_EXT_sparse_texture2")) {
        is_GL_EXT_sparse_texture2_supported = 1;
        init_GL_EXT_sparse_texture2();
    }
    if (isExtensionSupported("GL_EXT_stencil_clear_tag")) {
        is_GL_EXT_stencil_clear_tag_supported = 1;
        init_GL_EXT_stencil_clear_tag();
    }
    if (isExtensionSupported("GL_EXT_stencil_two_side")) {
        is_GL_EXT_stencil_two_side_supported = 1;
        init_GL_EXT_stencil_two_side();
    }
    if (isExtensionSupported("GL_EXT_stencil_wrap")) {
        is_GL_EXT_stencil_wrap_supported = 1;
        init_GL_EXT_stencil_wrap();
    }
    if (isExtensionSupported("GL_EXT_subtexture")) {
        is_GL_EXT_subtexture_supported = 1;
        init_GL_EXT_subtexture();
    }
    if (isExtensionSupported("GL_EXT_texture")) {
        is_GL_EXT_texture_supported = 1;
        init_GL_EXT_texture();
    }
    if (isExtensionSupported("GL_EXT_texture3D")) {
        is_GL_EXT_texture3D_supported = 1;
        init_GL_EXT_texture3D();
    }
    if (isExtensionSupported("GL_EXT_texture_array")) {
        is_GL_EXT_texture_array_supported = 1;
        init_GL_EXT_texture_array();
    }
    if (isExtensionSupported("GL_EXT_texture_buffer_object")) {
        is_GL_EXT_texture_buffer_object_supported = 1;
        init_GL_EXT_texture_buffer_object();
    }
    if (isExtensionSupported("GL_EXT_texture_compression_latc")) {
        is_GL_EXT_texture_compression_latc_supported = 1;
        init_GL_EXT_texture_compression_latc();
    }
    if (isExtensionSupported("GL_EXT_texture_compression_rgtc")) {
        is_GL_EXT_texture_compression_rgtc_supported = 1;
        init_GL_EXT_texture_compression_rgtc();
    }
    if (isExtensionSupported("GL_EXT_texture_compression_s3tc")) {
        is_GL_EXT_texture_compression_s3tc_supported = 1;
        init_GL_EXT_texture_compression_s3tc();
    }
    if (isExtensionSupported("GL_EXT_texture_cube_map")) {
        is_GL_EXT_texture_cube_map_supported = 1;
        init_GL_EXT_texture_cube_map();
    }
    if (isExtensionSupported("GL_EXT_texture_env_add")) {
        is_GL_EXT_texture_env_add_supported = 1;
        init_GL_EXT_texture_env_add();
    }
    if (isExtensionSupported("GL_EXT_texture_env_combine")) {
        is_GL_EXT_texture_env_combine_supported = 1;
        init_GL_EXT_texture_env_combine();
    }
    if (isExtensionSupported("GL_EXT_texture_env_dot3")) {
        is_GL_EXT_texture_env_dot3_supported = 1;
        init_GL_EXT_texture_env_dot3();
    }
    if (isExtensionSupported("GL_EXT_texture_filter_anisotropic")) {
        is_GL_EXT_texture_filter_anisotropic_supported = 1;
        init_GL_EXT_texture_filter_anisotropic();
    }
    if (isExtensionSupported("GL_EXT_texture_filter_minmax")) {
        is_GL_EXT_texture_filter_minmax_supported = 1;
        init_GL_EXT_texture_filter_minmax();
    }
    if (isExtensionSupported("GL_EXT_texture_integer")) {
        is_GL_EXT_texture_integer_supported = 1;
        init_GL_EXT_texture_integer();
    }
    if (isExtensionSupported("GL_EXT_texture_lod_bias")) {
        is_GL_EXT_texture_lod_bias_supported = 1;
        init_GL_EXT_texture_lod_bias();
    }
    if (isExtensionSupported("GL_EXT_texture_mirror_clamp")) {
        is_GL_EXT_texture_mirror_clamp_supported = 1;
        init_GL_EXT_texture_mirror_clamp();
    }
    if (isExtensionSupported("GL_EXT_texture_object")) {
        is_GL_EXT_texture_object_supported = 1;
        init_GL_EXT_texture_object();
    }
    if (isExtensionSupported("GL_EXT_texture_perturb_normal")) {
        is_GL_EXT_texture_perturb_normal_supported = 1;
        init_GL_EXT_texture_perturb_normal();
    }
    if (isExtensionSupported("GL_EXT_texture_sRGB")) {
        is_GL_EXT_texture_sRGB_supported = 1;
        init_GL_EXT_texture_sRGB();
    }
    if (isExtensionSupported("GL_EXT_texture_sRGB_R8")) {
        is_GL_EXT_texture_sRGB_R8_supported = 1;
        init_GL_EXT_texture_sRGB_R8();
    }
    if (isExtensionSupported("GL_EXT_texture_sRGB_RG8")) {
        is_GL_EXT_texture_sRGB_RG8_supported = 1;
        init_GL_EXT_texture_sRGB_RG8();
    }
    if (isExtensionSupported("GL_EXT_texture_sRGB_decode")) {
        is_GL_EXT_texture_sRGB_decode_supported = 1;
        init_GL_EXT_texture_sRGB_decode();
    }
    if (isExtensionSupported("GL_EXT_texture_shadow_lod")) {
        is_GL_EXT_texture_shadow_lod_supported = 1;
        init_GL_EXT_texture_shadow_lod();
    }
    if (isExtensionSupported("GL_EXT_texture_shared_exponent")) {
        is_GL_EXT_texture_shared_exponent_supported = 1;
        init_GL_EXT_texture_shared_exponent();
    }
    if (isExtensionSupported("GL_EXT_texture_snorm")) {
        is_GL_EXT_texture_snorm_supported = 1;
        init_GL_EXT_texture_snorm();
    }
    if (isExtensionSupported("GL_EXT_texture_storage")) {
        is_GL_EXT_texture_storage_supported = 1;
        init_GL_EXT_texture_storage();
    }
    if (isExtensionSupported("GL_EXT_texture_swizzle")) {
        is_GL_EXT_texture_swizzle_supported = 1;
        init_GL_EXT_texture_swizzle();
    }
    if (isExtensionSupported("GL_EXT_timer_query")) {
        is_GL_EXT_timer_query_supported = 1;
        init_GL_EXT_timer_query();
    }
    if (isExtensionSupported("GL_EXT_transform_feedback")) {
        is_GL_EXT_transform_feedback_supported = 1;
        init_GL_EXT_transform_feedback();
    }
    if (isExtensionSupported("GL_EXT_vertex_array")) {
        is_GL_EXT_vertex_array_supported = 1;
        init_GL_EXT_vertex_array();
    }
    if (isExtensionSupported("GL_EXT_vertex_array_bgra")) {
        is_GL_EXT_vertex_array_bgra_supported = 1;
        init_GL_EXT_vertex_array_bgra();
    }
    if (isExtensionSupported("GL_EXT_vertex_attrib_64bit")) {
        is_GL_EXT_vertex_attrib_64bit_supported = 1;
        init_GL_EXT_vertex_attrib_64bit();
    }
    if (isExtensionSupported("GL_EXT_vertex_shader")) {
        is_GL_EXT_vertex_shader_supported = 1;
        init_GL_EXT_vertex_shader();
    }
    if (isExtensionSupported("GL_EXT_vertex_weighting")) {
        is_GL_EXT_vertex_weighting_supported = 1;
        init_GL_EXT_vertex_weighting();
    }
    if (isExtensionSupported("GL_EXT_win32_keyed_mutex")) {
        is_GL_EXT_win32_keyed_mutex_supported = 1;
        init_GL_EXT_win32_keyed_mutex();
    }
    if (isExtensionSupported("GL_EXT_window_rectangles")) {
        is_GL_EXT_window_rectangles_supported = 1;
        init_GL_EXT_window_rectangles();
    }
    if (isExtensionSupported("GL_EXT_x11_sync_object")) {
        is_GL_EXT_x11_sync_object_supported = 1;
        init_GL_EXT_x11_sync_object();
    }
    if (isExtensionSupported("GL_GREMEDY_frame_terminator")) {
        is_GL_GREMEDY_frame_terminator_supported = 1;
        init_GL_GREMEDY_frame_terminator();
    }
    if (isExtensionSupported("GL_GREMEDY_string_marker")) {
        is_GL_GREMEDY_string_marker_supported = 1;
        init_GL_GREMEDY_string_marker();
    }
    if (isExtensionSupported("GL_HP_convolution_border_modes")) {
        is_GL_HP_convolution_border_modes_supported = 1;
        init_GL_HP_convolution_border_modes();
    }
    if (isExtensionSupported("GL_HP_image_transform")) {
        is_GL_HP_image_transform_supported = 1;
        init_GL_HP_image_transform();
    }
    if (isExtensionSupported("GL_HP_occlusion_test")) {
        is_GL_HP_occlusion_test_supported = 1;
        init_GL_HP_occlusion_test();
    }
    if (isExtensionSupported("GL_HP_texture_lighting")) {
        is_GL_HP_texture_lighting_supported = 1;
        init_GL_HP_texture_lighting();
    }
    if (isExtensionSupported("GL_IBM_cull_vertex")) {
        is_GL_IBM_cull_vertex_supported = 1;
        init_GL_IBM_cull_vertex();
    }
    if (isExtensionSupported("GL_IBM_multimode_draw_arrays")) {
        is_GL_IBM_multimode_draw_arrays_supported = 1;
        init_GL_IBM_multimode_draw_arrays();
    }
    if (isExtensionSupported("GL_IBM_rasterpos_clip")) {
        is_GL_IBM_rasterpos_clip_supported = 1;
        init_GL_IBM_rasterpos_clip();
    }
    if (isExtensionSupported("GL_IBM_static_data")) {
        is_GL_IBM_static_data_supported = 1;
        init_GL_IBM_static_data();
    }
    if (isExtensionSupported("GL_IBM_texture_mirrored_repeat")) {
        is_GL_IBM_texture_mirrored_repeat_supported = 1;
        init_GL_IBM_texture_mirrored_repeat();
    }
    if (isExtensionSupported("GL_IBM_vertex_array_lists")) {
        is_GL_IBM_vertex_array_lists_supported = 1;
        init_GL_IBM_vertex_array_lists();
    }
    if (isExtensionSupported("GL_INGR_blend_func_separate")) {
        is_GL_INGR_blend_func_separate_supported = 1;
        init_GL_INGR_blend_func_separate();
    }
    if (isExtensionSupported("GL_INGR_color_clamp")) {
        is_GL_INGR_color_clamp_supported = 1;
        init_GL_INGR_color_clamp();
    }
    if (isExtensionSupported("GL_INGR_interlace_read")) {
        is_GL_INGR_interlace_read_supported = 1;
        init_GL_INGR_interlace_read();
    }
    if (isExtensionSupported("GL_INTEL_blackhole_render")) {
        is_GL_INTEL_blackhole_render_supported = 1;
        init_GL_INTEL_blackhole_render();
    }
    if (isExtensionSupported("GL_INTEL_conservative_rasterization")) {
        is_GL_INTEL_conservative_rasterization_supported = 1;
        init_GL_INTEL_conservative_rasterization();
    }
    if (isExtensionSupported("GL_INTEL_fragment_shader_ordering")) {
        is_GL_INTEL_fragment_shader_ordering_supported = 1;
        init_GL_INTEL_fragment_shader_ordering();
    }
    if (isExtensionSupported("GL_INTEL_framebuffer_CMAA")) {
        is_GL_INTEL_framebuffer_CMAA_supported = 1;
        init_GL_INTEL_framebuffer_CMAA();
    }
    if (isExtensionSupported("GL_INTEL_map_texture")) {
        is_GL_INTEL_map_texture_supported = 1;
        init_GL_INTEL_map_texture();
    }
    if (isExtensionSupported("GL_INTEL_parallel_arrays")) {
        is_GL_INTEL_parallel_arrays_supported = 1;
        init_GL_INTEL_parallel_arrays();
    }
    if (isExtensionSupported("GL_INTEL_performance_query")) {
        is_GL_INTEL_performance_query_supported = 1;
        init_GL_INTEL_performance_query();
    }
    if (isExtensionSupported("GL_KHR_blend_equation_advanced")) {
        is_GL_KHR_blend_equation_advanced_supported = 1;
        init_GL_KHR_blend_equation_advanced();
    }
    if (isExtensionSupported("GL_KHR_blend_equation_advanced_coherent")) {
        is_GL_KHR_blend_equation_advanced_coherent_supported = 1;
        init_GL_KHR_blend_equation_advanced_coherent();
    }
    if (isExtensionSupported("GL_KHR_context_flush_control")) {
        is_GL_KHR_context_flush_control_supported = 1;
        init_GL_KHR_context_flush_control();
    }
    if (isExtensionSupported("GL_KHR_debug")) {
        is_GL_KHR_debug_supported = 1;
        init_GL_KHR_debug();
    }
    if (isExtensionSupported("GL_KHR_no_error")) {
        is_GL_KHR_no_error_supported = 1;
        init_GL_KHR_no_error();
    }
    if (isExtensionSupported("GL_KHR_parallel_shader_compile")) {
        is_GL_KHR_parallel_shader_compile_supported = 1;
        init_GL_KHR_parallel_shader_compile();
    }
    if (isExtensionSupported("GL_KHR_robust_buffer_access_behavior")) {
        is_GL_KHR_robust_buffer_access_behavior_supported = 1;
        init_GL_KHR_robust_buffer_access_behavior();
    }
    if (isExtensionSupported("GL_KHR_robustness")) {
        is_GL_KHR_robustness_supported = 1;
        init_GL_KHR_robustness();
    }
    if (isExtensionSupported("GL_KHR_shader_subgroup")) {
        is_GL_KHR_shader_subgroup_supported = 1;
        init_GL_KHR_shader_subgroup();
    }
    if (isExtensionSupported("GL_KHR_texture_compression_astc_hdr")) {
        is_GL_KHR_texture_compression_astc_hdr_supported = 1;
        init_GL_KHR_texture_compression_astc_hdr();
    }
    if (isExtensionSupported("GL_KHR_texture_compression_astc_ldr")) {
        is_GL_KHR_texture_compression_astc_ldr_supported = 1;
        init_GL_KHR_texture_compression_astc_ldr();
    }
    if (isExtensionSupported("GL_KHR_texture_compression_astc_sliced_3d")) {
        is_GL_KHR_texture_compression_astc_sliced_3d_supported = 1;
        init_GL_KHR_texture_compression_astc_sliced_3d();
    }
    if (isExtensionSupported("GL_MESAX_texture_stack")) {
        is_GL_MESAX_texture_stack_supported = 1;
        init_GL_MESAX_texture_stack();
    }
    if (isExtensionSupported("GL_MESA_framebuffer_flip_x")) {
        is_GL_MESA_framebuffer_flip_x_supported = 1;
        init_GL_MESA_framebuffer_flip_x();
    }
    if (isExtensionSupported("GL_MESA_framebuffer_flip_y")) {
        is_GL_MESA_framebuffer_flip_y_supported = 1;
        init_GL_MESA_framebuffer_flip_y();
    }
    if (isExtensionSupported("GL_MESA_framebuffer_swap_xy")) {
        is_GL_MESA_framebuffer_swap_xy_supported = 1;
        init_GL_MESA_framebuffer_swap_xy();
    }
    if (isExtensionSupported("GL_MESA_pack_invert")) {
        is_GL_MESA_pack_invert_supported = 1;
        init_GL_MESA_pack_invert();
    }
    if (isExtensionSupported("GL_MESA_program_binary_formats")) {
        is_GL_MESA_program_binary_formats_supported = 1;
        init_GL_MESA_program_binary_formats();
    }
    if (isExtensionSupported("GL_MESA_resize_buffers")) {
        is_GL_MESA_resize_buffers_supported = 1;
        init_GL_MESA_resize_buffers();
    }
    if (isExtensionSupported("GL_MESA_shader_integer_functions")) {
        is_GL_MESA_shader_integer_functions_supported = 1;
        init_GL_MESA_shader_integer_functions();
    }
    if (isExtensionSupported("GL_MESA_tile_raster_order")) {
        is_GL_MESA_tile_raster_order_supported = 1;
        init_GL_MESA_tile_raster_order();
    }
    if (isExtensionSupported("GL_MESA_ycbcr_texture")) {
        is_GL_MESA_ycbcr_texture_supported = 1;
        init_GL_MESA_ycbcr_texture();
    }
    if (isExtensionSupported("GL_NVX_blend_equation_advanced_multi_draw_buffers")) {
        is_GL_NVX_blend_equation_advanced_multi_draw_buffers_supported = 1;
        init_GL_NVX_blend_equation_advanced_multi_draw_buffers();
    }
    if (isExtensionSupported("GL_NVX_conditional_render")) {
        is_GL_NVX_conditional_render_supported = 1;
        init_GL_NVX_conditional_render();
    }
    if (isExtensionSupported("GL_NVX_gpu_memory_info")) {
        is_GL_NVX_gpu_memory_info_supported = 1;
        init_GL_NVX_gpu_memory_info();
    }
    if (isExtensionSupported("GL_NVX_gpu_multicast2")) {
        is_GL_NVX_gpu_multicast2_supported = 1;
        init_GL_NVX_gpu_multicast2();
    }
    if (isExtensionSupported("GL_NVX_linked_gpu_multicast")) {
        is_GL_NVX_linked_gpu_multicast_supported = 1;
        init_GL_NVX_linked_gpu_multicast();
    }
    if (isExtensionSupported("GL_NVX_progress_fence")) {
        is_GL_NVX_progress_fence_supported = 1;
        init_GL_NVX_progress_fence();
    }
    if (isExtensionSupported("GL_NV_alpha_to_coverage_dither_control")) {
        is_GL_NV_alpha_to_coverage_dither_control_supported = 1;
        init_GL_NV_alpha_to_coverage_dither_control();
    }
    if (isExtensionSupported("GL_NV_bindless_multi_draw_indirect")) {
        is_GL_NV_bindless_multi_draw_indirect_supported = 1;
        init_GL_NV_bindless_multi_draw_indirect();
    }
    if (isExtensionSupported("GL_NV_bindless_multi_draw_indirect_count")) {
        is_GL_NV_bindless_multi_draw_indirect_count_supported = 1;
        init_GL_NV_bindless_multi_draw_indirect_count();
    }
    if (isExtensionSupported("GL_NV_bindless_texture")) {
        is_GL_NV_bindless_texture_supported = 1;
        init_GL_NV_bindless_texture();
    }
    if (isExtensionSupported("GL_NV_blend_equation_advanced")) {
        is_GL_NV_blend_equation_advanced_supported = 1;
        init_GL_NV_blend_equation_advanced();
    }
    if (isExtensionSupported("GL_NV_blend_equation_advanced_coherent")) {
        is_GL_NV_blend_equation_advanced_coherent_supported = 1;
        init_GL_NV_blend_equation_advanced_coherent();
    }
    if (isExtensionSupported("GL_NV_blend_minmax_factor")) {
        is_GL_NV_blend_minmax_factor_supported = 1;
        init_GL_NV_blend_minmax_factor();
    }
    if (isExtensionSupported("GL_NV_blend_square")) {
        is_GL_NV_blend_square_supported = 1;
        init_GL_NV_blend_square();
    }
    if (isExtensionSupported("GL_NV_clip_space_w_scaling")) {
        is_GL_NV_clip_space_w_scaling_supported = 1;
        init_GL_NV_clip_space_w_scaling();
    }
    if (isExtensionSupported("GL_NV_command_list")) {
        is_GL_NV_command_list_supported = 1;
        init_GL_NV_command_list();
    }
    if (isExtensionSupported("GL_NV_compute_program5")) {
        is_GL_NV_compute_program5_supported = 1;
        init_GL_NV_compute_program5();
    }
    if (isExtensionSupported("GL_NV_compute_shader_derivatives")) {
        is_GL_NV_compute_shader_derivatives_supported = 1;
        init_GL_NV_compute_shader_derivatives();
    }
    if (isExtensionSupported("GL_NV_conditional_render")) {
        is_GL_NV_conditional_render_supported = 1;
        init_GL_NV_conditional_render();
    }
    if (isExtensionSupported("GL_NV_conservative_raster")) {
        is_GL_NV_conservative_raster_supported = 1;
        init_GL_NV_conservative_raster();
    }
    if (isExtensionSupported("GL_NV_conservative_raster_dilate")) {
        is_GL_NV_conservative_raster_dilate_supported = 1;
        init_GL_NV_conservative_raster_dilate();
    }
    if (isExtensionSupported("GL_NV_conservative_raster_pre_snap")) {
        is_GL_NV_conservative_raster_pre_snap_supported = 1;
        init_GL_NV_conservative_raster_pre_snap();
    }
    if (isExtensionSupported("GL_NV_conservative_raster_pre_snap_triangles")) {
        is_GL_NV_conservative_raster_pre_snap_triangles_supported = 1;
        init_GL_NV_conservative_raster_pre_snap_triangles();
    }
    if (isExtensionSupported("GL_NV_conservative_raster_underestimation")) {
        is_GL_NV_conservative_raster_underestimation_supported = 1;
        init_GL_NV_conservative_raster_underestimation();
    }
    if (isExtensionSupported("GL_NV_copy_depth_to_color")) {
        is_GL_NV_copy_depth_to_color_supported = 1;
        init_GL_NV_copy_depth_to_color();
    }
    if (isExtensionSupported("GL_NV_copy_image")) {
        is_GL_NV_copy_image_supported = 1;
        init_GL_NV_copy_image();
    }
    if (isExtensionSupported("GL_NV_deep_texture3D")) {
        is_GL_NV_deep_texture3D_supported = 1;
        init_GL_NV_deep_texture3D();
    }
    if (isExtensionSupported("GL_NV_depth_buffer_float")) {
        is_GL_NV_depth_buffer_float_supported = 1;
        init_GL_NV_depth_buffer_float();
    }
    if (isExtensionSupported("GL_NV_depth_clamp")) {
        is_GL_NV_depth_clamp_supported = 1;
        init_GL_NV_depth_clamp();
    }
    if (isExtensionSupported("GL_NV_draw_texture")) {
        is_GL_NV_draw_texture_supported = 1;
        init_GL_NV_draw_texture();
    }
    if (isExtensionSupported("GL_NV_draw_vulkan_image")) {
        is_GL_NV_draw_vulkan_image_supported = 1;
        init_GL_NV_draw_vulkan_image();
    }
    if (isExtensionSupported("GL_NV_evaluators")) {
        is_GL_NV_evaluators_supported = 1;
        init_GL_NV_evaluators();
    }
    if (isExtensionSupported("GL_NV_explicit_multisample")) {
        is_GL_NV_explicit_multisample_supported = 1;
        init_GL_NV_explicit_multisample();
    }
    if (isExtensionSupported("GL_NV_fence")) {
        is_GL_NV_fence_supported = 1;
        init_GL_NV_fence();
    }
    if (isExtensionSupported("GL_NV_fill_rectangle")) {
        is_GL_NV_fill_rectangle_supported = 1;
        init_GL_NV_fill_rectangle();
    }
    if (isExtensionSupported("GL_NV_float_buffer")) {
        is_GL_NV_float_buffer_supported = 1;
        init_GL_NV_float_buffer();
    }
    if (isExtensionSupported("GL_NV_fog_distance")) {
        is_GL_NV_fog_distance_supported = 1;
        init_GL_NV_fog_distance();
    }
    if (isExtensionSupported("GL_NV_fragment_coverage_to_color")) {
        is_GL_NV_fragment_coverage_to_color_supported = 1;
        init_GL_NV_fragment_coverage_to_color();
    }
    if (isExtensionSupported("GL_NV_fragment_program")) {
        is_GL_NV_fragment_program_supported = 1;
        init_GL_NV_fragment_program();
    }
    if (isExtensionSupported("GL_NV_fragment_program2")) {
        is_GL_NV_fragment_program2_supported = 1;
        init_GL_NV_fragment_program2();
    }
    if (isExtensionSupported("GL_NV_fragment_program4")) {
        is_GL_NV_fragment_program4_supported = 1;
        init_GL_NV_fragment_program4();
    }
    if (isExtensionSupported("GL_NV_fragment_program_option")) {
        is_GL_NV_fragment_program_option_supported = 1;
        init_GL_NV_fragment_program_option();
    }
    if (isExtensionSupported("GL_NV_fragment_shader_barycentric")) {
        is_GL_NV_fragment_shader_barycentric_supported = 1;
        init_GL_NV_fragment_shader_barycentric();
    }
    if (isExtensionSupported("GL_NV_fragment_shader_interlock")) {
        is_GL_NV_fragment_shader_interlock_supported = 1;
        init_GL_NV_fragment_shader_interlock();
    }
    if (isExtensionSupported("GL_NV_framebuffer_mixed_samples")) {
        is_GL_NV_framebuffer_mixed_samples_supported = 1;
        init_GL_NV_framebuffer_mixed_samples();
    }
    if (isExtensionSupported("GL_NV_framebuffer_multisample_coverage")) {
        is_GL_NV_framebuffer_multisample_coverage_supported = 1;
        init_GL_NV_framebuffer_multisample_coverage();
    }
    if (isExtensionSupported("GL_NV_geometry_program4")) {
        is_GL_NV_geometry_program4_supported = 1;
        init_GL_NV_geometry_program4();
    }
    if (isExtensionSupported("GL_NV_geometry_shader4")) {
        is_GL_NV_geometry_shader4_supported = 1;
        init_GL_NV_geometry_shader4();
    }
    if (isExtensionSupported("GL_NV_geometry_shader_passthrough")) {
        is_GL_NV_geometry_shader_passthrough_supported = 1;
        init_GL_NV_geometry_shader_passthrough();
    }
    if (isExtensionSupported("GL_NV_gpu_multicast")) {
        is_GL_NV_gpu_multicast_supported = 1;
        init_GL_NV_gpu_multicast();
    }
    if (isExtensionSupported("GL_NV_gpu_program4")) {
        is_GL_NV_gpu_program4_supported = 1;
        init_GL_NV_gpu_program4();
    }
    if (isExtensionSupported("GL_NV_gpu_program5")) {
        is_GL_NV_gpu_program5_supported = 1;
        init_GL_NV_gpu_program5();
    }
    if (isExtensionSupported("GL_NV_gpu_program5_mem_extended")) {
        is_GL_NV_gpu_program5_mem_extended_supported = 1;
        init_GL_NV_gpu_program5_mem_extended();
    }
    if (isExtensionSupported("GL_NV_gpu_shader5")) {
        is_GL_NV_gpu_shader5_supported = 1;
        init_GL_NV_gpu_shader5();
    }
    if (isExtensionSupported("GL_NV_half_float")) {
        is_GL_NV_half_float_supported = 1;
        init_GL_NV_half_float();
    }
    if (isExtensionSupported("GL_NV_internalformat_sample_query")) {
        is_GL_NV_internalformat_sample_query_supported = 1;
        init_GL_NV_internalformat_sample_query();
    }
    if (isExtensionSupported("GL_NV_light_max_exponent")) {
        is_GL_NV_light_max_exponent_supported = 1;
        init_GL_NV_light_max_exponent();
    }
    if (isExtensionSupported("GL_NV_memory_attachment")) {
        is_GL_NV_memory_attachment_supported = 1;
        init_GL_NV_memory_attachment();
    }
    if (isExtensionSupported("GL_NV_memory_object_sparse")) {
        is_GL_NV_memory_object_sparse_supported = 1;
        init_GL_NV_memory_object_sparse();
    }
    if (isExtensionSupported("GL_NV_mesh_shader")) {
        is_GL_NV_mesh_shader_supported = 1;
        init_GL_NV_mesh_shader();
    }
    if (isExtensionSupported("GL_NV_multisample_coverage")) {
        is_GL_NV_multisample_coverage_supported = 1;
        init_GL_NV_multisample_coverage();
    }
    if (isExtensionSupported("GL_NV_multisample_filter_hint")) {
        is_GL_NV_multisample_filter_hint_supported = 1;
        init_GL_NV_multisample_filter_hint();
    }
    if (isExtensionSupported("GL_NV_occlusion_query")) {
        is_GL_NV_occlusion_query_supported = 1;
        init_GL_NV_occlusion_query();
    }
    if (isExtensionSupported("GL_NV_packed_depth_stencil")) {
        is_GL_NV_packed_depth_stencil_supported = 1;
        init_GL_NV_packed_depth_stencil();
    }
    if (isExtensionSupported("GL_NV_parameter_buffer_object")) {
        is_GL_NV_parameter_buffer_object_supported = 1;
        init_GL_NV_parameter_buffer_object();
    }
    if (isExtensionSupported("GL_NV_parameter_buffer_object2")) {
        is_GL_NV_parameter_buffer_object2_supported = 1;
        init_GL_NV_parameter_buffer_object2();
    }
    if (isExtensionSupported("GL_NV_path_rendering")) {
        is_GL_NV_path_rendering_supported = 1;
        init_GL_NV_path_rendering();
    }
    if (isExtensionSupported("GL_NV_path_rendering_shared_edge")) {
        is_GL_NV_path_rendering_shared_edge_supported = 1;
        init_GL_NV_path_rendering_shared_edge();
    }
    if (isExtensionSupported("GL_NV_pixel_data_range")) {
        is_GL_NV_pixel_data_range_supported = 1;
        init_GL_NV_pixel_data_range();
    }
    if (isExtensionSupported("GL_NV_point_sprite")) {
        is_GL_NV_point_sprite_supported = 1;
        init_GL_NV_point_sprite();
    }
    if (isExtensionSupported("GL_NV_present_video")) {
        is_GL_NV_present_video_supported = 1;
        init_GL_NV_present_video();
    }
    if (isExtensionSupported("GL_NV_primitive_restart")) {
        is_GL_NV_primitive_restart_supported = 1;
        init_GL_NV_primitive_restart();
    }
    if (isExtensionSupported("GL_NV_primitive_shading_rate")) {
        is_GL_NV_primitive_shading_rate_supported = 1;
        init_GL_NV_primitive_shading_rate();
    }
    if (isExtensionSupported("GL_NV_query_resource")) {
        is_GL_NV_query_resource_supported = 1;
        init_GL_NV_query_resource();
    }
    if (isExtensionSupported("GL_NV_query_resource_tag")) {
        is_GL_NV_query_resource_tag_supported = 1;
        init_GL_NV_query_resource_tag();
    }
    if (isExtensionSupported("GL_NV_register_combiners")) {
        is_GL_NV_register_combiners_supported = 1;
        init_GL_NV_register_combiners();
    }
    if (isExtensionSupported("GL_NV_register_combiners2")) {
        is_GL_NV_register_combiners2_supported = 1;
        init_GL_NV_register_combiners2();
    }
    if (isExtensionSupported("GL_NV_representative_fragment_test")) {
        is_GL_NV_representative_fragment_test_supported = 1;
        init_GL_NV_representative_fragment_test();
    }
    if (isExtensionSupported("GL_NV_robustness_video_memory_purge")) {
        is_GL_NV_robustness_video_memory_purge_supported = 1;
        init_GL_NV_robustness_video_memory_purge();
    }
    if (isExtensionSupported("GL_NV_sample_locations")) {
        is_GL_NV_sample_locations_supported = 1;
        init_GL_NV_sample_locations();
    }
    if (isExtensionSupported("GL_NV_sample_mask_override_coverage")) {
        is_GL_NV_sample_mask_override_coverage_supported = 1;
        init_GL_NV_sample_mask_override_coverage();
    }
    if (isExtensionSupported("GL_NV_scissor_exclusive")) {
        is_GL_NV_scissor_exclusive_supported = 1;
        init_GL_NV_scissor_exclusive();
    }
    if (isExtensionSupported("GL_NV_shader_atomic_counters")) {
        is_GL_NV_shader_atomic_counters_supported = 1;
        init_GL_NV_shader_atomic_counters();
    }
    if (isExtensionSupported("GL_NV_shader_atomic_float")) {
        is_GL_NV_shader_atomic_float_supported = 1;
        init_GL_NV_shader_atomic_float();
    }
    if (isExtensionSupported("GL_NV_shader_atomic_float64")) {
        is_GL_NV_shader_atomic_float64_supported = 1;
        init_GL_NV_shader_atomic_float64();
    }
    if (isExtensionSupported("GL_NV_shader_atomic_fp16_vector")) {
        is_GL_NV_shader_atomic_fp16_vector_supported = 1;
        init_GL_NV_shader_atomic_fp16_vector();
    }
    if (isExtensionSupported("GL_NV_shader_atomic_int64")) {
        is_GL_NV_shader_atomic_int64_supported = 1;
        init_GL_NV_shader_atomic_int64();
    }
    if (isExtensionSupported("GL_NV_shader_buffer_load")) {
        is_GL_NV_shader_buffer_load_supported = 1;
        init_GL_NV_shader_buffer_load();
    }
    if (isExtensionSupported("GL_NV_shader_buffer_store")) {
        is_GL_NV_shader_buffer_store_supported = 1;
        init_GL_NV_shader_buffer_store();
    }
    if (isExtensionSupported("GL_NV_shader_storage_buffer_object")) {
        is_GL_NV_shader_storage_buffer_object_supported = 1;
        init_GL_NV_shader_storage_buffer_object();
    }
    if (isExtensionSupported("GL_NV_shader_subgroup_partitioned")) {
        is_GL_NV_shader_subgroup_partitioned_supported = 1;
        init_GL_NV_shader_subgroup_partitioned();
    }
    if (isExtensionSupported("GL_NV_shader_texture_footprint")) {
        is_GL_NV_shader_texture_footprint_supported = 1;
        init_GL_NV_shader_texture_footprint();
    }
    if (isExtensionSupported("GL_NV_shader_thread_group")) {
        is_GL_NV_shader_thread_group_supported = 1;
        init_GL_NV_shader_thread_group();
    }
    if (isExtensionSupported("GL_NV_shader_thread_shuffle")) {
        is_GL_NV_shader_thread_shuffle_supported = 1;
        init_GL_NV_shader_thread_shuffle();
    }
    if (isExtensionSupported("GL_NV_shading_rate_image")) {
        is_GL_NV_shading_rate_image_supported = 1;
        init_GL_NV_shading_rate_image();
    }
    if (isExtensionSupported("GL_NV_stereo_view_rendering")) {
        is_GL_NV_stereo_view_rendering_supported = 1;
        init_GL_NV_stereo_view_rendering();
    }
    if (isExtensionSupported("GL_NV_tessellation_program5")) {
        is_GL_NV_tessellation_program5_supported = 1;
        init_GL_NV_tessellation_program5();
    }
    if (isExtensionSupported("GL_NV_texgen_emboss")) {
        is_GL_NV_texgen_emboss_supported = 1;
        init_GL_NV_texgen_emboss();
    }
    if (isExtensionSupported("GL_NV_texgen_reflection")) {
        is_GL_NV_texgen_reflection_supported = 1;
        init_GL_NV_texgen_reflection();
    }
    if (isExtensionSupported("GL_NV_texture_barrier")) {
        is_GL_NV_texture_barrier_supported = 1;
        init_GL_NV_texture_barrier();
    }
    if (isExtensionSupported("GL_NV_texture_compression_vtc")) {
        is_GL_NV_texture_compression_vtc_supported = 1;
        init_GL_NV_texture_compression_vtc();
    }
    if (isExtensionSupported("GL_NV_texture_env_combine4")) {
        is_GL_NV_texture_env_combine4_supported = 1;
        init_GL_NV_texture_env_combine4();
    }
    if (isExtensionSupported("GL_NV_texture_expand_normal")) {
        is_GL_NV_texture_expand_normal_supported = 1;
        init_GL_NV_texture_expand_normal();
    }
    if (isExtensionSupported("GL_NV_texture_multisample")) {
        is_GL_NV_texture_multisample_supported = 1;
        init_GL_NV_texture_multisample();
    }
    if (isExtensionSupported("GL_NV_texture_rectangle")) {
        is_GL_NV_texture_rectangle_supported = 1;
        init_GL_NV_texture_rectangle();
    }
    if (isExtensionSupported("GL_NV_texture_rectangle_compressed")) {
        is_GL_NV_texture_rectangle_compressed_supported = 1;
        init_GL_NV_texture_rectangle_compressed();
    }
    if (isExtensionSupported("GL_NV_texture_shader")) {
        is_GL_NV_texture_shader_supported = 1;
        init_GL_NV_texture_shader();
    }
    if (isExtensionSupported("GL_NV_texture_shader2")) {
        is_GL_NV_texture_shader2_supported = 1;
        init_GL_NV_texture_shader2();
    }
    if (isExtensionSupported("GL_NV_texture_shader3")) {
        is_GL_NV_texture_shader3_supported = 1;
        init_GL_NV_texture_shader3();
    }
    if (isExtensionSupported("GL_NV_timeline_semaphore")) {
        is_GL_NV_timeline_semaphore_supported = 1;
        init_GL_NV_timeline_semaphore();
    }
    if (isExtensionSupported("GL_NV_transform_feedback")) {
        is_GL_NV_transform_feedback_supported = 1;
        init_GL_NV_transform_feedback();
    }
    if (isExtensionSupported("GL_NV_transform_feedback2")) {
        is_GL_NV_transform_feedback2_supported = 1;
        init_GL_NV_transform_feedback2();
    }
    if (isExtensionSupported("GL_NV_uniform_buffer_unified_memory")) {
        is_GL_NV_uniform_buffer_unified_memory_supported = 1;
        init_GL_NV_uniform_buffer_unified_memory();
    }
    if (isExtensionSupported("GL_NV_vdpau_interop")) {
        is_GL_NV_vdpau_interop_supported = 1;
        init_GL_NV_vdpau_interop();
    }
    if (isExtensionSupported("GL_NV_vdpau_interop2")) {
        is_GL_NV_vdpau_interop2_supported = 1;
        init_GL_NV_vdpau_interop2();
    }
    if (isExtensionSupported("GL_NV_vertex_array_range")) {
        is_GL_NV_vertex_array_range_supported = 1;
        init_GL_NV_vertex_array_range();
    }
    if (isExtensionSupported("GL_NV_vertex_array_range2")) {
        is_GL_NV_vertex_array_range2_supported = 1;
        init_GL_NV_vertex_array_range2();
    }
    if (isExtensionSupported("GL_NV_vertex_attrib_integer_64bit")) {
        is_GL_NV_vertex_attrib_integer_64bit_supported = 1;
        init_GL_NV_vertex_attrib_integer_64bit();
    }
    if (isExtensionSupported("GL_NV_vertex_buffer_unified_memory")) {
        is_GL_NV_vertex_buffer_unified_memory_supported = 1;
        init_GL_NV_vertex_buffer_unified_memory();
    }
    if (isExtensionSupported("GL_NV_vertex_program")) {
        is_GL_NV_vertex_program_supported = 1;
        init_GL_NV_vertex_program();
    }
    if (isExtensionSupported("GL_NV_vertex_program1_1")) {
        is_GL_NV_vertex_program1_1_supported = 1;
        init_GL_NV_vertex_program1_1();
    }
    if (isExtensionSupported("GL_NV_vertex_program2")) {
        is_GL_NV_vertex_program2_supported = 1;
        init_GL_NV_vertex_program2();
    }
    if (isExtensionSupported("GL_NV_vertex_program2_option")) {
        is_GL_NV_vertex_program2_option_supported = 1;
        init_GL_NV_vertex_program2_option();
    }
    if (isExtensionSupported("GL_NV_vertex_program3")) {
        is_GL_NV_vertex_program3_supported = 1;
        init_GL_NV_vertex_program3();
    }
    if (isExtensionSupported("GL_NV_vertex_program4")) {
        is_GL_NV_vertex_program4_supported = 1;
        init_GL_NV_vertex_program4();
    }
    if (isExtensionSupported("GL_NV_video_capture")) {
        is_GL_NV_video_capture_supported = 1;
        init_GL_NV_video_capture();
    }
    if (isExtensionSupported("GL_NV_viewport_array2")) {
        is_GL_NV_viewport_array2_supported = 1;
        init_GL_NV_viewport_array2();
    }
    if (isExtensionSupported("GL_NV_viewport_swizzle")) {
        is_GL_NV_viewport_swizzle_supported = 1;
        init_GL_NV_viewport_swizzle();
    }
    if (isExtensionSupported("GL_OES_byte_coordinates")) {
        is_GL_OES_byte_coordinates_supported = 1;
        init_GL_OES_byte_coordinates();
    }
    if (isExtensionSupported("GL_OES_compressed_paletted_texture")) {
        is_GL_OES_compressed_paletted_texture_supported = 1;
        init_GL_OES_compressed_paletted_texture();
    }
    if (isExtensionSupported("GL_OES_fixed_point")) {
        is_GL_OES_fixed_point_supported = 1;
        init_GL_OES_fixed_point();
    }
    if (isExtensionSupported("GL_OES_query_matrix")) {
        is_GL_OES_query_matrix_supported = 1;
        init_GL_OES_query_matrix();
    }
    if (isExtensionSupported("GL_OES_read_format")) {
        is_GL_OES_read_format_supported = 1;
        init_GL_OES_read_format();
    }
    if (isExtensionSupported("GL_OES_single_precision")) {
        is_GL_OES_single_precision_supported = 1;
        init_GL_OES_single_precision();
    }
    if (isExtensionSupported("GL_OML_interlace")) {
        is_GL_OML_interlace_supported = 1;
        init_GL_OML_interlace();
    }
    if (isExtensionSupported("GL_OML_resample")) {
        is_GL_OML_resample_supported = 1;
        init_GL_OML_resample();
    }
    if (isExtensionSupported("GL_OML_subsample")) {
        is_GL_OML_subsample_supported = 1;
        init_GL_OML_subsample();
    }
    if (isExtensionSupported("GL_OVR_multiview")) {
        is_GL_OVR_multiview_supported = 1;
        init_GL_OVR_multiview();
    }
    if (isExtensionSupported("GL_OVR_multiview2")) {
        is_GL_OVR_multiview2_supported = 1;
        init_GL_OVR_multiview2();
    }
    if (isExtensionSupported("GL_PGI_misc_hints")) {
        is_GL_PGI_misc_hints_supported = 1;
        init_GL_PGI_misc_hints();
    }
    if (isExtensionSupported("GL_PGI_vertex_hints")) {
        is_GL_PGI_vertex_hints_supported = 1;
        init_GL_PGI_vertex_hints();
    }
    if (isExtensionSupported("GL_REND_screen_coordinates")) {
        is_GL_REND_screen_coordinates_supported = 1;
        init_GL_REND_screen_coordinates();
    }
    if (isExtensionSupported("GL_S3_s3tc")) {
        is_GL_S3_s3tc_supported = 1;
        init_GL_S3_s3tc();
    }
    if (isExtensionSupported("GL_SGIS_detail_texture")) {
        is_GL_SGIS_detail_texture_supported = 1;
        init_GL_SGIS_detail_texture();
    }
    if (isExtensionSupported("GL_SGIS_fog_function")) {
        is_GL_SGIS_fog_function_supported = 1;
        init_GL_SGIS_fog_function();
    }
    if (isExtensionSupported("GL_SGIS_generate_mipmap")) {
        is_GL_SGIS_generate_mipmap_supported = 1;
        init_GL_SGIS_generate_mipmap();
    }
    if (isExtensionSupported("GL_SGIS_multisample")) {
        is_GL_SGIS_multisample_supported = 1;
        init_GL_SGIS_multisample();
    }
    if (isExtensionSupported("GL_SGIS_pixel_texture")) {
        is_GL_SGIS_pixel_texture_supported = 1;
        init_GL_SGIS_pixel_texture();
    }
    if (isExtensionSupported("GL_SGIS_point_line_texgen")) {
        is_GL_SGIS_point_line_texgen_supported = 1;
        init_GL_SGIS_point_line_texgen();
    }
    if (isExtensionSupported("GL_SGIS_point_parameters")) {
        is_GL_SGIS_point_parameters_supported = 1;
        init_GL_SGIS_point_parameters();
    }
    if (isExtensionSupported("GL_SGIS_sharpen_texture")) {
        is_GL_SGIS_sharpen_texture_supported = 1;
        init_GL_SGIS_sharpen_texture();
    }
    if (isExtensionSupported("GL_SGIS_texture4D")) {
        is_GL_SGIS_texture4D_supported = 1;
        init_GL_SGIS_texture4D();
    }
    if (isExtensionSupported("GL_SGIS_texture_border_clamp")) {
        is_GL_SGIS_texture_border_clamp_supported = 1;
        init_GL_SGIS_texture_border_clamp();
    }
    if (isExtensionSupported("GL_SGIS_texture_color_mask")) {
        is_GL_SGIS_texture_color_mask_supported = 1;
        init_GL_SGIS_texture_color_mask();
    }
    if (isExtensionSupported("GL_SGIS_texture_edge_clamp")) {
        is_GL_SGIS_texture_edge_clamp_supported = 1;
        init_GL_SGIS_texture_edge_clamp();
    }
    if (isExtensionSupported("GL_SGIS_texture_filter4")) {
        is_GL_SGIS_texture_filter4_supported = 1;
        init_GL_SGIS_texture_filter4();
    }
    if (isExtensionSupported("GL_SGIS_texture_lod")) {
        is_GL_SGIS_texture_lod_supported = 1;
        init_GL_SGIS_texture_lod();
    }
    if (isExtensionSupported("GL_SGIS_texture_select")) {
        is_GL_SGIS_texture_select_supported = 1;
        init_GL_SGIS_texture_select();
    }
    if (isExtensionSupported("GL_SGIX_async")) {
        is_GL_SGIX_async_supported = 1;
        init_GL_SGIX_async();
    }
    if (isExtensionSupported("GL_SGIX_async_histogram")) {
        is_GL_SGIX_async_histogram_supported = 1;
        init_GL_SGIX_async_histogram();
    }
    if (isExtensionSupported("GL_SGIX_async_pixel")) {
        is_GL_SGIX_async_pixel_supported = 1;
        init_GL_SGIX_async_pixel();
    }
    if (isExtensionSupported("GL_SGIX_blend_alpha_minmax")) {
        is_GL_SGIX_blend_alpha_minmax_supported = 1;
        init_GL_SGIX_blend_alpha_minmax();
    }
    if (isExtensionSupported("GL_SGIX_calligraphic_fragment")) {
        is_GL_SGIX_calligraphic_fragment_supported = 1;
        init_GL_SGIX_calligraphic_fragment();
    }
    if (isExtensionSupported("GL_SGIX_clipmap")) {
        is_GL_SGIX_clipmap_supported = 1;
        init_GL_SGIX_clipmap();
    }
    if (isExtensionSupported("GL_SGIX_convolution_accuracy")) {
        is_GL_SGIX_convolution_accuracy_supported = 1;
        init_GL_SGIX_convolution_accuracy();
    }
    if (isExtensionSupported("GL_SGIX_depth_pass_instrument")) {
        is_GL_SGIX_depth_pass_instrument_supported = 1;
        init_GL_SGIX_depth_pass_instrument();
    }
    if (isExtensionSupported("GL_SGIX_depth_texture")) {
        is_GL_SGIX_depth_texture_supported = 1;
        init_GL_SGIX_depth_texture();
    }
    if (isExtensionSupported("GL_SGIX_flush_raster")) {
        is_GL_SGIX_flush_raster_supported = 1;
        init_GL_SGIX_flush_raster();
    }
    if (isExtensionSupported("GL_SGIX_fog_offset")) {
        is_GL_SGIX_fog_offset_supported = 1;
        init_GL_SGIX_fog_offset();
    }
    if (isExtensionSupported("GL_SGIX_fragment_lighting")) {
        is_GL_SGIX_fragment_lighting_supported = 1;
        init_GL_SGIX_fragment_lighting();
    }
    if (isExtensionSupported("GL_SGIX_framezoom")) {
        is_GL_SGIX_framezoom_supported = 1;
        init_GL_SGIX_framezoom();
    }
    if (isExtensionSupported("GL_SGIX_igloo_interface")) {
        is_GL_SGIX_igloo_interface_supported = 1;
        init_GL_SGIX_igloo_interface();
    }
    if (isExtensionSupported("GL_SGIX_instruments")) {
        is_GL_SGIX_instruments_supported = 1;
        init_GL_SGIX_instruments();
    }
    if (isExtensionSupported("GL_SGIX_interlace")) {
        is_GL_SGIX_interlace_supported = 1;
        init_GL_SGIX_interlace();
    }
    if (isExtensionSupported("GL_SGIX_ir_instrument1")) {
        is_GL_SGIX_ir_instrument1_supported = 1;
        init_GL_SGIX_ir_instrument1();
    }
    if (isExtensionSupported("GL_SGIX_list_priority")) {
        is_GL_SGIX_list_priority_supported = 1;
        init_GL_SGIX_list_priority();
    }
    if (isExtensionSupported("GL_SGIX_pixel_texture")) {
        is_GL_SGIX_pixel_texture_supported = 1;
        init_GL_SGIX_pixel_texture();
    }
    if (isExtensionSupported("GL_SGIX_pixel_tiles")) {
        is_GL_SGIX_pixel_tiles_supported = 1;
        init_GL_SGIX_pixel_tiles();
    }
    if (isExtensionSupported("GL_SGIX_polynomial_ffd")) {
        is_GL_SGIX_polynomial_ffd_supported = 1;
        init_GL_SGIX_polynomial_ffd();
    }
    if (isExtensionSupported("GL_SGIX_reference_plane")) {
        is_GL_SGIX_reference_plane_supported = 1;
        init_GL_SGIX_reference_plane();
    }
    if (isExtensionSupported("GL_SGIX_resample")) {
        is_GL_SGIX_resample_supported = 1;
        init_GL_SGIX_resample();
    }
    if (isExtensionSupported("GL_SGIX_scalebias_hint")) {
        is_GL_SGIX_scalebias_hint_supported = 1;
        init_GL_SGIX_scalebias_hint();
    }
    if (isExtensionSupported("GL_SGIX_shadow")) {
        is_GL_SGIX_shadow_supported = 1;
        init_GL_SGIX_shadow();
    }
    if (isExtensionSupported("GL_SGIX_shadow_ambient")) {
        is_GL_SGIX_shadow_ambient_supported = 1;
        init_GL_SGIX_shadow_ambient();
    }
    if (isExtensionSupported("GL_SGIX_sprite")) {
        is_GL_SGIX_sprite_supported = 1;
        init_GL_SGIX_sprite();
    }
    if (isExtensionSupported("GL_SGIX_subsample")) {
        is_GL_SGIX_subsample_supported = 1;
        init_GL_SGIX_subsample();
    }
    if (isExtensionSupported("GL_SGIX_tag_sample_buffer")) {
        is_GL_SGIX_tag_sample_buffer_supported = 1;
        init_GL_SGIX_tag_sample_buffer();
    }
    if (isExtensionSupported("GL_SGIX_texture_add_env")) {
        is_GL_SGIX_texture_add_env_supported = 1;
        init_GL_SGIX_texture_add_env();
    }
    if (isExtensionSupported("GL_SGIX_texture_coordinate_clamp")) {
        is_GL_SGIX_texture_coordinate_clamp_supported = 1;
        init_GL_SGIX_texture_coordinate_clamp();
    }
    if (isExtensionSupported("GL_SGIX_texture_lod_bias")) {
        is_GL_SGIX_texture_lod_bias_supported = 1;
        init_GL_SGIX_texture_lod_bias();
    }
    if (isExtensionSupported("GL_SGIX_texture_multi_buffer")) {
        is_GL_SGIX_texture_multi_buffer_supported = 1;
        init_GL_SGIX_texture_multi_buffer();
    }
    if (isExtensionSupported("GL_SGIX_texture_scale_bias")) {
        is_GL_SGIX_texture_scale_bias_supported = 1;
        init_GL_SGIX_texture_scale_bias();
    }
    if (isExtensionSupported("GL_SGIX_vertex_preclip")) {
        is_GL_SGIX_vertex_preclip_supported = 1;
        init_GL_SGIX_vertex_preclip();
    }
    if (isExtensionSupported("GL_SGIX_ycrcb")) {
        is_GL_SGIX_ycrcb_supported = 1;
        init_GL_SGIX_ycrcb();
    }
    if (isExtensionSupported("GL_SGIX_ycrcb_subsample")) {
        is_GL_SGIX_ycrcb_subsample_supported = 1;
        init_GL_SGIX_ycrcb_subsample();
    }
    if (isExtensionSupported("GL_SGIX_ycrcba")) {
        is_GL_SGIX_ycrcba_supported = 1;
        init_GL_SGIX_ycrcba();
    }
    if (isExtensionSupported("GL_SGI_color_matrix")) {
        is_GL_SGI_color_matrix_supported = 1;
        init_GL_SGI_color_matrix();
    }
    if (isExtensionSupported("GL_SGI_color_table")) {
        is_GL_SGI_color_table_supported = 1;
        init_GL_SGI_color_table();
    }
    if (isExtensionSupported("GL_SGI_texture_color_table")) {
        is_GL_SGI_texture_color_table_supported = 1;
        init_GL_SGI_texture_color_table();
    }
    if (isExtensionSupported("GL_SUNX_constant_data")) {
        is_GL_SUNX_constant_data_supported = 1;
        init_GL_SUNX_constant_data();
    }
    if (isExtensionSupported("GL_SUN_convolution_border_modes")) {
        is_GL_SUN_convolution_border_modes_supported = 1;
        init_GL_SUN_convolution_border_modes();
    }
    if (isExtensionSupported("GL_SUN_global_alpha")) {
        is_GL_SUN_global_alpha_supported = 1;
        init_GL_SUN_global_alpha();
    }
    if (isExtensionSupported("GL_SUN_mesh_array")) {
        is_GL_SUN_mesh_array_supported = 1;
        init_GL_SUN_mesh_array();
    }
    if (isExtensionSupported("GL_SUN_slice_accum")) {
        is_GL_SUN_slice_accum_supported = 1;
        init_GL_SUN_slice_accum();
    }
    if (isExtensionSupported("GL_SUN_triangle_list")) {
        is_GL_SUN_triangle_list_supported = 1;
        init_GL_SUN_triangle_list();
    }
    if (isExtensionSupported("GL_SUN_vertex")) {
        is_GL_SUN_vertex_supported = 1;
        init_GL_SUN_vertex();
    }
    if (isExtensionSupported("GL_VERSION_1_2")) {
        is_GL_VERSION_1_2_supported = 1;
        init_GL_VERSION_1_2();
    }
    if (isExtensionSupported("GL_VERSION_1_3")) {
        is_GL_VERSION_1_3_supported = 1;
        init_GL_VERSION_1_3();
    }
    if (isExtensionSupported("GL_VERSION_1_4")) {
        is_GL_VERSION_1_4_supported = 1;
        init_GL_VERSION_1_4();
    }
    if (isExtensionSupported("GL_VERSION_1_5")) {
        is_GL_VERSION_1_5_supported = 1;
        init_GL_VERSION_1_5();
    }
    if (isExtensionSupported("GL_VERSION_2_0")) {
        is_GL_VERSION_2_0_supported = 1;
        init_GL_VERSION_2_0();
    }
    if (isExtensionSupported("GL_VERSION_2_1")) {
        is_GL_VERSION_2_1_supported = 1;
        init_GL_VERSION_2_1();
    }
    if (isExtensionSupported("GL_VERSION_3_0")) {
        is_GL_VERSION_3_0_supported = 1;
        init_GL_VERSION_3_0();
    }
    if (isExtensionSupported("GL_VERSION_3_1")) {
        is_GL_VERSION_3_1_supported = 1;
        init_GL_VERSION_3_1();
    }
    if (isExtensionSupported("GL_VERSION_3_2")) {
        is_GL_VERSION_3_2_supported = 1;
        init_GL_VERSION_3_2();
    }
    if (isExtensionSupported("GL_VERSION_3_3")) {
        is_GL_VERSION_3_3_supported = 1;
        init_GL_VERSION_3_3();
    }
    if (isExtensionSupported("GL_VERSION_4_0")) {
        is_GL_VERSION_4_0_supported = 1;
        init_GL_VERSION_4_0();
    }
    if (isExtensionSupported("GL_VERSION_4_1")) {
        is_GL_VERSION_4_1_supported = 1;
        init_GL_VERSION_4_1();
    }
    if (isExtensionSupported("GL_VERSION_4_2")) {
        is_GL_VERSION_4_2_supported = 1;
        init_GL_VERSION_4_2();
    }
    if (isExtensionSupported("GL_VERSION_4_3")) {
        is_GL_VERSION_4_3_supported = 1;
        init_GL_VERSION_4_3();
    }
    if (isExtensionSupported("GL_VERSION_4_4")) {
        is_GL_VERSION_4_4_supported = 1;
        init_GL_VERSION_4_4();
    }
    if (isExtensionSupported("GL_VERSION_4_5")) {
        is_GL_VERSION_4_5_supported = 1;
        init_GL_VERSION_4_5();
    }
    if (isExtensionSupported("GL_VERSION_4_6")) {
        is_GL_VERSION_4_6_supported = 1;
        init_GL_VERSION_4_6();
    }
    if (isExtensionSupported("GL_WIN_phong_shading")) {
        is_GL_WIN_phong_shading_supported = 1;
        init_GL_WIN_phong_shading();
    }
    if (isExtensionSupported("GL_WIN_specular_fog")) {
        is_GL_WIN_specular_fog_supported = 1;
        init_GL_WIN_specular_fog();
    }
}
